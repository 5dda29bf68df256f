#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Behind '>' (protocol reference, chapter 16): a time in UTC or a locator with a symbol, where there is one, and text.
void ParseStatus(std::string_view text, StatusReport& status);

} // namespace ruvenmark::aprs
