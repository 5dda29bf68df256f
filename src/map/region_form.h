#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ruvenmark {

// The buttons of frmRegion. Pressing one closes the dialog.
struct RegionButton {
    std::string_view key;     // Names the picture too.
    std::string_view caption; // With its mnemonic.
    std::int32_t region;
};
inline constexpr std::array<RegionButton, 12> kRegionButtons = {{
    {"US", "&United States", 1},
    {"Canada", "&Canada", 1},
    {"France", "&France", 2},
    {"Germany", "&Germany", 2},
    {"Italy", "&Italy", 2},
    {"UK", "United &Kingdom", 2},
    {"Austria", "&Austria", 2},
    {"Belgium", "&Belgium", 2},
    {"Denmark", "&Denmark", 2},
    {"Netherlands", "&Netherlands", 2},
    {"Spain", "&Spain", 2},
    {"Switzerland", "S&witzerland", 2},
}};

inline constexpr std::int32_t kFirstSelectedRegion = 1; // Closed without a button, the dialog leaves this.

// The region after the button of this key; any other key leaves it as it was.
constexpr std::int32_t RegionOfButton(std::string_view key, std::int32_t selectedRegion)
{
    for (const auto& button : kRegionButtons)
        if (button.key == key)
            return button.region;
    return selectedRegion;
}

} // namespace ruvenmark
