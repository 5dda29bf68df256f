#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// PHG or DFS and four digits in front of the text, which is seven bytes at least (protocol reference, chapter 7): power
// or strength, height, gain and direction. Returns how many bytes they take, 0 where it is none.
std::size_t ParseReach(std::string_view text, PositionReport& report);

// The same of a PHG somewhere in a comment, out of which it is taken. Words are not mistaken for it.
void TakeReach(PositionReport& report);

} // namespace ruvenmark::aprs
