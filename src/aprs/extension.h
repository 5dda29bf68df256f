#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// The data extension in the first seven bytes behind a plain position: course and speed, PHG, DFS or range (protocol
// reference, chapter 7). Returns the text behind it. Area objects have other figures there, which stay in the text.
std::string_view ParseExtension(std::string_view text, PositionReport& report);

} // namespace ruvenmark::aprs
