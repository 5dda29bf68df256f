#include "desktop/map/scene/map_look.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

QFont Sized(QFont font, int pixels, QFont::Weight weight)
{
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

int NamePixels(std::int32_t mapFont)
{
    constexpr std::array kPixels{17, 14, 12, 11, 10};
    return kPixels[static_cast<std::size_t>(std::clamp(mapFont, 0, 4))];
}

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

MapLook::MapLook(const QPalette& palette, const QFont& font, std::int32_t mapFont, bool bDarkGround)
    : text(bDarkGround ? QColor(0xF2, 0xF4, 0xF6) : QColor(0x12, 0x18, 0x20)),
      halo(bDarkGround ? QColor(0x14, 0x18, 0x1D, 235) : QColor(255, 255, 255, 235)),
      plate(palette.color(QPalette::Base)), plateText(palette.color(QPalette::Text)),
      edge(IsDark(palette) ? QColor(0x70, 0x78, 0x82) : QColor(0x8A, 0x93, 0x9E)),
      badge(bDarkGround ? QColor(0xE8, 0xEB, 0xEE) : QColor(0x24, 0x2C, 0x36)),
      badgeText(bDarkGround ? QColor(0x1B, 0x20, 0x27) : QColor(Qt::white)), accent(palette.color(QPalette::Highlight)),
      nameFont(Sized(font, NamePixels(mapFont), QFont::DemiBold)), badgeFont(Sized(font, 10, QFont::Bold)),
      smallFont(Sized(font, 11, QFont::Normal)),
      balloonFont(Sized(font, std::max(NamePixels(mapFont), 12), QFont::Normal))
{
}

} // namespace ruvenmark
