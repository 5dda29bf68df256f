#pragma once

#include "mapfiles/base_map.h"
#include "platform/map_style.h"

#include <QColor>

#include <array>

namespace ruvenmark {

struct BaseMapPalette {
    QColor water, land, coast, river, border, stateBorder;
    std::array<QColor, kPoliticalColors> political;
    // Names: each text colour stands on the same halo.
    QColor country, state, city, town, waterName, halo;
};

BaseMapPalette PaletteFor(MapStyle style, bool bDark);

} // namespace ruvenmark
