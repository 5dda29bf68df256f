#pragma once

#include "platform/map_model.h"

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
    {"US", "&United States", kRegionNorthAmerica},
    {"Canada", "&Canada", kRegionNorthAmerica},
    {"France", "&France", kRegionEurope},
    {"Germany", "&Germany", kRegionEurope},
    {"Italy", "&Italy", kRegionEurope},
    {"UK", "United &Kingdom", kRegionEurope},
    {"Austria", "&Austria", kRegionEurope},
    {"Belgium", "&Belgium", kRegionEurope},
    {"Denmark", "&Denmark", kRegionEurope},
    {"Netherlands", "&Netherlands", kRegionEurope},
    {"Spain", "&Spain", kRegionEurope},
    {"Switzerland", "S&witzerland", kRegionEurope},
}};

// frmRegion: closed without a button, the dialog leaves the region as it was.
struct RegionForm {
    std::int32_t selectedRegion = kRegionNorthAmerica;
};

// A button was pressed; any other key changes nothing.
constexpr void frmRegion_Click(RegionForm& form, std::string_view key)
{
    for (const auto& button : kRegionButtons)
        if (button.key == key)
            form.selectedRegion = button.region;
}

} // namespace ruvenmark
