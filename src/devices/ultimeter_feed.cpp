#include "devices/ultimeter_feed.h"

#include "aprs/text.h"

#include <array>
#include <cmath>
#include <vector>

namespace ruvenmark {

namespace {

constexpr std::size_t kGroup = 4; // Hex digits, or dashes where there is no sensor.
constexpr std::size_t kNowhere = SIZE_MAX;

// In which group each value stands, from 0.
struct Mode {
    std::string_view sign;
    std::size_t fewest; // Groups.
    std::size_t wind, minuteWind, direction, gust, temperature, rainTotal, rainToday, pressure, humidity;
};
constexpr std::array<Mode, 3> kModes{{
    {"!!", 10, 0, 11, 1, kNowhere, 2, 3, 10, 4, 6},
    {"$ULTW", 11, kNowhere, 12, 1, 0, 2, 3, 11, 4, 8},
    {"&CR&", 8, 0, kNowhere, 1, 2, 5, kNowhere, 6, 7, 12},
}};

class Groups {
public:
    // False where it does not consist of whole groups.
    bool Read(std::string_view text)
    {
        for (; text.size() >= kGroup; text.remove_prefix(kGroup)) {
            const std::string_view digits = text.substr(0, kGroup);
            int value = 0;
            for (const char c : digits) {
                if (aprs::HexValue(c) < 0 && digits != "----")
                    return false;
                value = value * 16 + aprs::HexValue(c);
            }
            if (digits == "----")
                m_values.emplace_back();
            else
                m_values.emplace_back(value < 0x8000 ? value : value - 0x10000);
        }
        return text.empty();
    }

    std::size_t Count() const { return m_values.size(); }

    std::optional<int> Between(std::size_t at, int lowest, int highest) const
    {
        const auto value = at < m_values.size() ? m_values[at] : std::nullopt;
        return value && *value >= lowest && *value <= highest ? value : std::nullopt;
    }
    std::optional<double> Scaled(std::size_t at, int lowest, int highest, double scale) const
    {
        const auto value = Between(at, lowest, highest);
        return value ? std::optional(*value * scale) : std::nullopt;
    }

private:
    std::vector<std::optional<int>> m_values;
};

// The low byte goes once round the circle.
std::optional<int> Direction(std::optional<int> group)
{
    if (!group)
        return std::nullopt;
    constexpr double kStep = 360.0 / 255.0;
    const int degrees = static_cast<int>(std::lround((*group & 0xFF) * kStep));
    return degrees == 0 ? 360 : degrees;
}

WeatherReading ReadingOf(const Groups& groups, const Mode& mode)
{
    constexpr int kAny = 0x7FFF;
    constexpr int kMostWind = 4000;                  // Tenths of a kilometre an hour.
    constexpr int kColdest = -1500, kHottest = 2000; // Tenths of a degree Fahrenheit.
    constexpr int kLowest = 5000, kHighest = 12000;  // Tenths of a millibar.
    constexpr int kDriest = 10, kWettest = 1000;     // Tenths of a percent.
    constexpr double kTenthKmh = aprs::kMphPerKmh / 10;

    WeatherReading reading;
    reading.windSpeed = groups.Scaled(mode.minuteWind, 0, kMostWind, kTenthKmh);
    if (!reading.windSpeed)
        reading.windSpeed = groups.Scaled(mode.wind, 0, kMostWind, kTenthKmh);
    reading.gust = groups.Scaled(mode.gust, 0, kMostWind, kTenthKmh);
    reading.windDir = Direction(groups.Between(mode.direction, -kAny, kAny));
    reading.temperature = groups.Scaled(mode.temperature, kColdest, kHottest, 0.1);
    reading.rainToday = groups.Scaled(mode.rainToday, 0, kAny, 1);
    reading.rainCount = groups.Scaled(mode.rainTotal, 0, kAny, 1);
    if (!reading.rainCount)
        reading.rainCount = reading.rainToday;
    reading.pressure = groups.Between(mode.pressure, kLowest, kHighest);
    if (const auto humidity = groups.Between(mode.humidity, kDriest, kWettest))
        reading.humidity = (*humidity + 5) / 10;
    return reading;
}

} // namespace

std::optional<WeatherReading> ReadUltimeter(std::string_view line)
{
    for (const Mode& mode : kModes) {
        if (!line.starts_with(mode.sign))
            continue;
        Groups groups;
        if (groups.Read(aprs::TrimRight(line.substr(mode.sign.size()))) && groups.Count() >= mode.fewest)
            return ReadingOf(groups, mode);
    }
    return std::nullopt;
}

} // namespace ruvenmark
