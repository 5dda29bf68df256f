#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// Values of a weather station (protocol reference, chapter 12): wind in front, then letters with figures in any order.
// Figures of dots or blanks are not known. Returns whether the text is weather at all, and takes it off.
bool ParseWeather(std::string_view& text, Weather& weather);

// Behind '_': time, then wind as c...s..., then the same letters.
Refusal ParsePositionlessWeather(std::string_view body, WeatherReport& report);

} // namespace ruvenmark::aprs
