#include "desktop/map/base_map/base_map_style.h"

#include <algorithm>
#include <span>

namespace ruvenmark {

namespace {

struct Shade {
    QColor BaseMapPalette::*color;
    QRgb light, dark;
};

constexpr std::array kRoad{
    Shade{&BaseMapPalette::water, 0xB4D3E8, 0x1B2736},     Shade{&BaseMapPalette::land, 0xF6F4EE, 0x2C3036},
    Shade{&BaseMapPalette::coast, 0x8CB5D1, 0x3F556B},     Shade{&BaseMapPalette::river, 0x9CC4DF, 0x2C445C},
    Shade{&BaseMapPalette::border, 0x9A86A6, 0x877A95},    Shade{&BaseMapPalette::stateBorder, 0xB3AABA, 0x565460},
    Shade{&BaseMapPalette::country, 0x4A4155, 0xD9D2E2},   Shade{&BaseMapPalette::state, 0x8B8096, 0x9790A3},
    Shade{&BaseMapPalette::city, 0x262A33, 0xE9ECF1},      Shade{&BaseMapPalette::town, 0x4B515C, 0xB6BDC8},
    Shade{&BaseMapPalette::waterName, 0x4A7FAB, 0x6F9DC6}, Shade{&BaseMapPalette::halo, 0xFFFFFF, 0x161A20},
};
constexpr int kHaloAlpha = 0xD0;
constexpr std::array<QRgb, kPoliticalColors> kLightPolitical{0xF5E0C8, 0xDCE9CC, 0xF3D6D6, 0xF8F1C6,
                                                             0xDDD6EC, 0xCFE6E0, 0xE9DAC2};
constexpr std::array<QRgb, kPoliticalColors> kDarkPolitical{0x4A4034, 0x3A4633, 0x4C383A, 0x484630,
                                                            0x3E3A50, 0x304846, 0x443C42};

// Instead of those of the road map: the same, washed out.
constexpr std::array kPale{
    Shade{&BaseMapPalette::water, 0xD6E6F0, 0x20272F},     Shade{&BaseMapPalette::land, 0xFDFCF9, 0x26292E},
    Shade{&BaseMapPalette::coast, 0xBBD2E1, 0x39444F},     Shade{&BaseMapPalette::river, 0xCBDFEC, 0x28333E},
    Shade{&BaseMapPalette::border, 0xC3B8CA, 0x5E5867},    Shade{&BaseMapPalette::stateBorder, 0xD8D3DC, 0x40414A},
    Shade{&BaseMapPalette::country, 0x7E7687, 0xA6A1AD},   Shade{&BaseMapPalette::state, 0x9A93A3, 0x77727F},
    Shade{&BaseMapPalette::city, 0x636770, 0xAFB3BA},      Shade{&BaseMapPalette::town, 0x888D96, 0x80858D},
    Shade{&BaseMapPalette::waterName, 0x7B9FBD, 0x55748F},
};
// Grey and quiet.
constexpr std::array kGrey{
    Shade{&BaseMapPalette::water, 0xDCE0E4, 0x1E2023},     Shade{&BaseMapPalette::land, 0xF5F5F4, 0x2B2D30},
    Shade{&BaseMapPalette::coast, 0xBCC2C8, 0x45484D},     Shade{&BaseMapPalette::river, 0xD8DDE2, 0x222427},
    Shade{&BaseMapPalette::border, 0xA2A6AD, 0x666970},    Shade{&BaseMapPalette::stateBorder, 0xCDD0D4, 0x44474C},
    Shade{&BaseMapPalette::country, 0x747982, 0x9CA0A8},   Shade{&BaseMapPalette::state, 0x8E949D, 0x7E838B},
    Shade{&BaseMapPalette::city, 0x5A5F68, 0xB4B8C0},      Shade{&BaseMapPalette::town, 0x8E949D, 0x7E838B},
    Shade{&BaseMapPalette::waterName, 0x8E949D, 0x7E838B},
};
constexpr std::array kRelief{
    Shade{&BaseMapPalette::river, 0x86B4D6, 0x3A5A78},     Shade{&BaseMapPalette::coast, 0x6FA1C4, 0x4E6A84},
    Shade{&BaseMapPalette::border, 0x836C80, 0xA696A0},    Shade{&BaseMapPalette::stateBorder, 0xA1959C, 0x77727C},
    Shade{&BaseMapPalette::waterName, 0x2F6694, 0x8FB6D8}, Shade{&BaseMapPalette::state, 0x6E6474, 0xB2ABB8},
};

void Put(BaseMapPalette& palette, std::span<const Shade> shades, bool bDark)
{
    for (const Shade& shade : shades)
        palette.*shade.color = QColor(bDark ? shade.dark : shade.light);
}

} // namespace

BaseMapPalette PaletteFor(MapStyle style, bool bDark)
{
    BaseMapPalette palette;
    Put(palette, kRoad, bDark);
    const MapStyleInfo& info = InfoOf(style);
    if (info.bPale)
        Put(palette, kPale, bDark);
    if (info.land == MapStyleInfo::Land::Grey)
        Put(palette, kGrey, bDark);
    if (info.land == MapStyleInfo::Land::Relief)
        Put(palette, kRelief, bDark);
    palette.halo.setAlpha(kHaloAlpha);
    const auto& political = bDark ? kDarkPolitical : kLightPolitical;
    std::transform(political.begin(), political.end(), palette.political.begin(), [](QRgb rgb) { return QColor(rgb); });
    return palette;
}

} // namespace ruvenmark
