#pragma once

#include "platform/clock.h"

#include <array>
#include <string>

namespace ruvenmark {

struct MainWindow;

// Wind direction, speed and gust, temperature, rain in the last hour, in the last day and since midnight, humidity,
// pressure.
using WeatherValues = std::array<std::string, 9>;
std::string WeatherReportText(const UtcTime& utc, const WeatherValues& values);

// From the settings, over all that is connected. A Failure ends it without a word.
void SendWeatherReport(MainWindow& main);
void mnuSendWeather_Click(MainWindow& main);

} // namespace ruvenmark
