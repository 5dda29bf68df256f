#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include <cstdint>

namespace ruvenmark {

// Colours and letters of what is painted over the ground. The ground decides between light and dark names, the palette
// gives the rest.
struct MapLook {
    MapLook(const QPalette& palette, const QFont& font, std::int32_t mapFont, bool bDarkGround);

    QColor text, halo;             // Names, the scale bar.
    QColor plate, plateText, edge; // Balloons and what lies in the corners.
    QColor badge, badgeText;
    QColor accent;
    QFont nameFont, badgeFont, smallFont, balloonFont;
};

bool IsDark(const QPalette& palette);

// The height in pixels of the letters of names, for the map's font 0 (largest) to 4.
int NamePixels(std::int32_t mapFont);

} // namespace ruvenmark
