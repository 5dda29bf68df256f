#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Mic-E (protocol reference, chapter 10): latitude, message and signs in the destination, the rest in the information
// field, here without its type byte.
Refusal ParseMicE(std::string_view dest, std::string_view body, PositionReport& report);

} // namespace ruvenmark::aprs
