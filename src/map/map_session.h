#pragma once

#include "map/directions.h"
#include "map/selection.h"
#include "map/tile_settings.h"
#include "platform/event.h"
#include "platform/map_model.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace ruvenmark {

// What the logic keeps of the map.
struct MapSession {
    std::optional<Location> NorthPole;
    std::optional<Location> WestPoint;
    double HalfCircumference = 0; // Miles.
    double QuarterCircumference = 0;

    std::int32_t Region = 0;
    bool bRegionKnown = false;
    std::string sMainMapFile; // Empty for a new map.

    double MyRange = 0; // Miles; 0 when it is not known.
    std::optional<Shape> MyRangeCircle;

    std::string PinPointSource; // The dialog that waits for a click on the map.
    std::int32_t mousePtr = 0;  // The pointer to put back after it.

    MapSelection Selection;
    Event<> SelectionChanged;

    std::array<std::optional<DirectionsEnd>, 2> directions; // Start and end, as the directions pane shows them.
    Event<> DirectionsChanged;

    TileSettings tiles;
    Event<> TilesChanged;
};

} // namespace ruvenmark
