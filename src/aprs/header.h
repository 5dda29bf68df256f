#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Splits a line at its first colon. Addresses are judged as servers do, not as on the air: nine letters, digits and
// dashes of either case for sources and path; the destination is as strict as on the air.
Refusal ParseHeader(std::string_view line, Header& header, std::string_view& info);

} // namespace ruvenmark::aprs
