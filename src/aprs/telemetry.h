#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// sss,a,a,a,a,a,bbbbbbbb and text (protocol reference, chapter 13), behind "T#". Real senders use decimals, signs and
// fewer values; what is missing stays empty.
Refusal ParseTelemetry(std::string_view text, Telemetry& telemetry);

} // namespace ruvenmark::aprs
