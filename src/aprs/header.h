#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Splits a line at its first colon. Addresses are judged as servers do, not as on the air: nine letters, digits and
// dashes of either case for sources and path; the destination is as strict as on the air. Returns what stands behind
// the colon, if that was reached.
std::string_view ParseHeader(std::string_view line, Header& header, Refusal& refusal);

} // namespace ruvenmark::aprs
