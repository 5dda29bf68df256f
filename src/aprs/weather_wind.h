#pragma once

#include "aprs/packet.h"

#include <string_view>

namespace ruvenmark::aprs {

// "ddd/sss" or "cdddsddd" in front of weather, figures of dots, blanks or dashes not known; taken off the text.
bool TakeWind(std::string_view& text, Weather& weather);

// What is left of a wind that was cut or garbled: whole figures count, the others are dropped. What follows it must be
// looked at before this is believed.
bool TakeBrokenWind(std::string_view& text, Weather& weather);

} // namespace ruvenmark::aprs
