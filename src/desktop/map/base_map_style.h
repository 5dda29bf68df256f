#pragma once

#include "desktop/map/base_map.h"

#include <QColor>

#include <array>
#include <cstdint>

namespace ruvenmark {

// How the ground looks; numbered as the map model's style.
enum class MapStyle : std::int32_t { Road = 0, RoadAndData, Data, Terrain, Political };

struct BaseMapPalette {
    QColor water, land, coast, river, border, stateBorder;
    std::array<QColor, kPoliticalColors> political;
    // Names: each text colour stands on the same halo.
    QColor country, state, city, town, waterName, halo;
};

// Any number that is no style counts as Road.
MapStyle ToMapStyle(std::int32_t mapStyle);
BaseMapPalette PaletteFor(MapStyle style, bool bDark);

} // namespace ruvenmark
