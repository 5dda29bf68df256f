#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace ruvenmark {

// What a box of the settings dialog shows; of the three, that which its kind has.
struct OptionField {
    std::string text;
    std::int32_t choice = -1; // In a list; -1 for a setting that names none of its entries.
    bool bTicked = false;
    friend bool operator==(const OptionField&, const OptionField&) = default;
};
inline constexpr std::size_t kOptionCount = 38;

// frmOptions: the settings of the station.
struct OptionsForm {
    std::array<OptionField, kOptionCount> fields, opened; // In the order of kOptionBoxes; the second as it opened.
    int SSTab1 = 0;                                       // The page in front.
};

} // namespace ruvenmark
