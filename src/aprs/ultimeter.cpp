#include "aprs/ultimeter.h"

#include "aprs/text.h"

#include <cmath>
#include <span>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kGroup = 4;
constexpr std::size_t kMaxGroups = 16;
constexpr double kDegreesPerStep = 360.0 / 255.0;
constexpr int kMinPressure = 10; // Tenths of a millibar; less is a station without a barometer.

struct Groups {
    std::array<std::optional<int>, kMaxGroups> values;
    bool bAny = false;
    std::string_view rest;
};

// Signed 16-bit value of four hex digits.
std::optional<int> GroupValue(std::string_view digits)
{
    int value = 0;
    for (const char c : digits) {
        const int digit = HexValue(c);
        if (digit < 0)
            return std::nullopt;
        value = value * 16 + digit;
    }
    return value < 0x8000 ? value : value - 0x10000;
}

Groups Split(std::string_view text)
{
    Groups groups;
    for (std::size_t i = 0; i < kMaxGroups && text.size() >= kGroup; ++i) {
        const std::string_view digits = text.substr(0, kGroup);
        const auto value = GroupValue(digits);
        if (!value && digits != "----")
            break;
        groups.values[i] = value;
        groups.bAny = groups.bAny || value;
        text.remove_prefix(kGroup);
    }
    groups.rest = text;
    return groups;
}

std::optional<double> Scaled(std::optional<int> value, double scale)
{
    return value ? std::optional(*value * scale) : std::nullopt;
}

std::optional<double> Direction(std::optional<int> value)
{
    return value ? std::optional(std::round((*value & 0xff) * kDegreesPerStep)) : std::nullopt;
}

std::optional<double> Pressure(std::optional<int> value)
{
    return value && *value >= kMinPressure ? std::optional(*value / 10.0) : std::nullopt;
}

std::optional<double> Humidity(std::optional<int> value)
{
    return value && *value >= 10 && *value <= 1000 ? std::optional(std::round(*value / 10.0)) : std::nullopt;
}

constexpr double kTenth = 0.1;
constexpr double kHundredth = 0.01;

// No station on earth measures more; figures beyond are other text that reads as hex.
constexpr double kMaxWind = 310;             // Miles an hour: the strongest wind in any tornado was about 300.
constexpr double kMinTemperature = -150;     // Degrees Fahrenheit: the coldest day ever had -128.6.
constexpr double kMaxTemperature = 200;      // The hottest had 134; a sensor in the sun on a roof may show 180.
constexpr double kMinStationPressure = 300;  // Millibar: the highest mountain has 337.
constexpr double kMaxStationPressure = 1150; // The highest ever was 1084, on a mine's ground some more.
constexpr double kMaxRain = 100;             // Inches: the wettest day ever had 72.

bool IsWithin(const std::optional<double>& value, double low, double high)
{
    return !value || (*value >= low && *value <= high);
}

Refusal CheckValues(const Weather& weather, const std::optional<double>& rainToday)
{
    const bool bMeasurable = IsWithin(rainToday, 0, kMaxRain) && IsWithin(weather.windSpeed, 0, kMaxWind) &&
                             IsWithin(weather.gust, 0, kMaxWind) &&
                             IsWithin(weather.temperature, kMinTemperature, kMaxTemperature) &&
                             IsWithin(weather.pressure, kMinStationPressure, kMaxStationPressure);
    return bMeasurable ? Refusal::None : Refusal::WeatherOutOfRange;
}

} // namespace

Refusal ParseUltimeterPacket(std::string_view packet, WeatherReport& report)
{
    const Groups groups = Split(packet);
    if (!groups.bAny)
        return Refusal::BadWeather;
    const auto& values = groups.values;
    Weather& weather = report.weather;
    weather.gust = Scaled(values[0], kTenth * kMphPerKmh);
    weather.windDirection = Direction(values[1]);
    weather.temperature = Scaled(values[2], kTenth);
    weather.pressure = Pressure(values[4]);
    weather.humidity = Humidity(values[8]);
    weather.rainMidnight = Scaled(values[11] ? values[11] : values[3], kHundredth);
    weather.windSpeed = Scaled(values[12], kTenth * kMphPerKmh);
    report.comment = Trim(groups.rest);
    return CheckValues(weather, Scaled(values[11], kHundredth));
}

Refusal ParseUltimeterLogging(std::string_view logging, WeatherReport& report)
{
    const Groups groups = Split(logging);
    if (!groups.bAny)
        return Refusal::BadWeather;
    const auto& values = groups.values;
    Weather& weather = report.weather;
    weather.windDirection = Direction(values[1]);
    weather.temperature = Scaled(values[2], kTenth);
    weather.pressure = Pressure(values[4]);
    weather.humidity = Humidity(values[6]);
    weather.rainMidnight = Scaled(values[10] ? values[10] : values[3], kHundredth);
    weather.windSpeed = Scaled(values[11] ? values[11] : values[0], kTenth * kMphPerKmh);
    report.comment = Trim(groups.rest);
    return CheckValues(weather, Scaled(values[10], kHundredth));
}

} // namespace ruvenmark::aprs
