#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// A plain or a compressed position at the front of the text, told apart by its first byte, and all that follows it:
// extension, weather, comment.
Refusal ParsePositionReport(std::string_view text, PositionReport& report);

// The same with a time in front; a time that makes no sense costs nothing but itself, and one that is missing in front
// of a plain position nothing at all.
Refusal ParseTimedPosition(std::string_view text, PositionReport& report);

} // namespace ruvenmark::aprs
