#pragma once

#include "map/coordinates.h"
#include "map/directions.h"
#include "map/pinpoint_target.h"
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
    std::int32_t Region = 0;  // 0 while it is not known.
    std::string sMainMapFile; // Empty for a new map.

    double MyRange = 0; // Miles; 0 when it is not known.
    std::optional<Shape> MyRangeCircle;

    std::optional<PinPointTarget> PinPointSource; // Who asked for a click on the map last; see IsPinPointing.
    std::int32_t mousePtr = 0;                    // The pointer to put back after it.
    std::optional<GeoPoint> pointed;              // Under the pointer; nothing off the world.

    MapSelection Selection;
    Event<> SelectionChanged;

    std::array<std::optional<DirectionsEnd>, 2> directions; // Start and end, as the directions pane shows them.
    Event<> DirectionsChanged;

    CoordinateForm coordinates = CoordinateForm::Decimal;
    std::int16_t iFadeAfter = 0; // Minutes after which a marker fades; 0: never.
    Event<> LookChanged;         // One of the two.

    TileSettings tiles;
    Event<> TilesChanged;
};

} // namespace ruvenmark
