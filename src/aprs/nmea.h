#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// A raw sentence of a GPS receiver, dollar sign first: RMC, GGA or GLL of any satellite system. A checksum must be
// right where there is one. The symbol comes from the destination.
Refusal ParseNmea(std::string_view sentence, std::string_view dest, PositionReport& report);

} // namespace ruvenmark::aprs
