#pragma once

#include "contracts/byte_link.h"
#include "contracts/weather_server.h"

#include <deque>
#include <optional>

namespace ruvenmark {

// What a station tells at once, each as far as it has the sensor.
struct WeatherReading {
    std::optional<int> windDir;        // Degrees, 360 north.
    std::optional<double> windSpeed;   // Miles an hour.
    std::optional<double> gust;        // The same: the station's own peak, if it keeps one.
    std::optional<double> temperature; // Degrees Fahrenheit.
    std::optional<double> rainCount;   // Hundredths of an inch, from any beginning.
    std::optional<double> rainToday;   // The same, since midnight.
    std::optional<int> humidity;       // Percent.
    std::optional<int> pressure;       // Tenths of a millibar.
};

// Adds what stations do not tell and reports need: the peak of the wind in the last five minutes, and the rain in the
// last hour and the last 24, as far as it has been watched.
class WeatherHistory {
public:
    WeatherUpdate Take(const WeatherReading& reading, Moment now);

private:
    struct Sample {
        Moment begun; // Of the minute, or part of one, that it stands for.
        double value;
    };

    void TakeRain(double count, Moment now);
    double RainSince(Moment begin) const;
    double PeakOf(double wind, Moment now);

    std::deque<Sample> m_rain; // What fell, where something did; a day of it.
    std::deque<Sample> m_wind; // The highest; five minutes of it.
    std::optional<double> m_rainCount;
    Moment m_rainCounted{};
};

} // namespace ruvenmark
