#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// ADDRESSEE:text (protocol reference, chapter 14), behind the type byte: messages, their acknowledgements and
// rejections, bulletins, and definitions of telemetry.
Refusal ParseMessage(std::string_view text, Message& message);

} // namespace ruvenmark::aprs
