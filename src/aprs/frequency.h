#pragma once

#include <optional>
#include <string_view>

namespace ruvenmark::aprs {

// The radio channel a station or object tells in its comment, "146.520MHz T088 +060" (protocol reference 1.2).
struct Frequency {
    double megahertz = 0;
    std::optional<double> tone;   // CTCSS, hertz.
    std::string_view digitalCode; // DCS, three octal digits.
    std::optional<double> offset; // Of the input, megahertz.
};

// Anywhere in the comment; tone and offset count right behind it only.
std::optional<Frequency> FindFrequency(std::string_view comment);

} // namespace ruvenmark::aprs
