#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Raw frames of Ultimeter weather stations: groups of four hex digits, "----" where a value is missing. `packet` is
// what follows "$ULTW", `logging` what follows "!!"; the two order their values differently.
Refusal ParseUltimeterPacket(std::string_view packet, WeatherReport& report);
Refusal ParseUltimeterLogging(std::string_view logging, WeatherReport& report);

} // namespace ruvenmark::aprs
