#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

inline constexpr std::size_t kCompressedSize = 13;

// First byte of a compressed position: a table, or an overlay whose digits are sent as a to j.
bool StartsCompressed(char c);

// T YYYY XXXX C cs T at the front of the text (protocol reference, chapter 9): the position, and course and speed,
// range or altitude where it has them.
Refusal ParseCompressedPosition(std::string_view text, PositionReport& report);

} // namespace ruvenmark::aprs
