#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Takes letters with figures off the text, in any order, up to one that comes again: the sender's software behind them.
// A figure that is not as it should be is dropped, and the reading goes on behind it. Returns whether there was a
// field.
bool TakeFields(std::string_view& text, Weather& weather);

// Weather without a wind in front begins with gust or temperature, or it is plain text.
bool StartsWithFields(std::string_view text);

} // namespace ruvenmark::aprs
