#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Maidenhead locator of four or six bytes at the front of the text: its size, or 0.
std::size_t LocatorSize(std::string_view text);
// The middle of a locator's square. The text must be one.
GridPosition LocatorPosition(std::string_view locator);

// "[IO91SX]text", here behind the bracket: obsolete, but still sent.
Refusal ParseGridBeacon(std::string_view text, GridBeacon& beacon);

} // namespace ruvenmark::aprs
