#pragma once

#include "aprs/packet.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace ruvenmark::aprs {

// A shape drawn on the map beside an object's position.
struct Area {
    std::string_view shape, colour;     // Such as "filled box", "dark red".
    double latitude = 0, longitude = 0; // Degrees from the position to the far corner, both 0 or more.
    std::optional<std::int32_t> width;  // Miles on either side, of lines.
};

// "Tyy/Cxx" in front of the comment of an area's symbol, with "{www}" behind it for a line's width (protocol reference,
// chapter 11).
std::optional<Area> FindArea(const PositionReport& report);

} // namespace ruvenmark::aprs
