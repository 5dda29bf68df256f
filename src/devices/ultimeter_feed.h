#pragma once

#include "devices/weather_history.h"

#include <optional>
#include <string_view>

namespace ruvenmark {

// A line of an Ultimeter station, of any of its three modes: data logging ("!!"), packet ("$ULTW") or complete
// ("&CR&"). The lines have no checksum: what does not consist of whole groups is no reading, a figure that no weather
// has is missing.
std::optional<WeatherReading> ReadUltimeter(std::string_view line);

} // namespace ruvenmark
