#include "devices/weather_history.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr auto kRainStep = 1min;
constexpr auto kWindStep = 15s;
constexpr auto kPeakTime = 5min;
// No sky pours faster: a figure that was read wrongly, as the lines of some stations have no checksum.
constexpr double kMostInAMinute = 120;
constexpr double kMostAtOnce = 10;

double Tenth(double value)
{
    return std::round(value * 10) / 10;
}

} // namespace

WeatherUpdate WeatherHistory::Take(const WeatherReading& reading, Moment now)
{
    WeatherUpdate update;
    update.windDir = reading.windDir.value_or(kAbsentLong);
    if (reading.windSpeed) {
        const double peak = PeakOf(*reading.windSpeed, now);
        update.windSpeed = Tenth(*reading.windSpeed);
        update.gust = Tenth(reading.gust.value_or(peak));
    } else if (reading.gust) {
        update.gust = Tenth(*reading.gust);
    }
    if (reading.temperature)
        update.temperature = Tenth(*reading.temperature);
    if (reading.rainCount)
        TakeRain(*reading.rainCount, now);
    if (m_rainCount) {
        update.rain1 = std::round(RainSince(now - 1h));
        update.rain24 = std::round(RainSince(now - 24h));
    }
    if (reading.rainToday)
        update.rain12 = std::round(*reading.rainToday);
    if (reading.humidity)
        update.humidity = *reading.humidity;
    if (reading.pressure)
        update.pressure = *reading.pressure;
    return update;
}

void WeatherHistory::TakeRain(double count, Moment now)
{
    while (!m_rain.empty() && now - m_rain.front().begun > 24h)
        m_rain.pop_front();
    if (m_rainCount) {
        const double fallen = count - *m_rainCount; // Below 0: it began anew.
        const double minutes = std::chrono::duration<double, std::ratio<60>>(now - m_rainCounted).count();
        if (fallen > 0 && fallen <= kMostAtOnce + kMostInAMinute * minutes) {
            if (m_rain.empty() || now - m_rain.back().begun >= kRainStep)
                m_rain.push_back({now, 0});
            m_rain.back().value += fallen;
        }
    }
    m_rainCount = count;
    m_rainCounted = now;
}

double WeatherHistory::RainSince(Moment begin) const
{
    double sum = 0;
    for (const Sample& sample : m_rain)
        if (sample.begun > begin)
            sum += sample.value;
    return sum;
}

double WeatherHistory::PeakOf(double wind, Moment now)
{
    while (!m_wind.empty() && now - m_wind.front().begun > kPeakTime)
        m_wind.pop_front();
    if (m_wind.empty() || now - m_wind.back().begun >= kWindStep)
        m_wind.push_back({now, wind});
    double peak = m_wind.back().value = std::max(m_wind.back().value, wind);
    for (const Sample& sample : m_wind)
        peak = std::max(peak, sample.value);
    return peak;
}

} // namespace ruvenmark
