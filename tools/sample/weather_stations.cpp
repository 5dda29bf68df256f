// Weather stations: a day that warms until the afternoon and cools in the night, some rain, in all forms of report.

#include "sample_day.h"

#include <array>
#include <cmath>
#include <numbers>

namespace ruvenmark::sample {

namespace {

using packet_text::Digits;
using packet_text::Join;

constexpr auto kSoftware = std::to_array<std::string_view>({".DvPi", "wRSW", "eMH50", "XWdb", ".WsHut"});
constexpr int kStations = 62;

struct Sky {
    int meanTemperature; // Degrees Fahrenheit.
    int windDirection;
    int wind;     // Miles an hour.
    int pressure; // Tenths of a millibar.
    int rain;     // Hundredths of an inch since midnight.
};

std::string Temperature(int fahrenheit)
{
    return fahrenheit < 0 ? Join({"-", Digits(-fahrenheit, 2)}) : Digits(fahrenheit, 3);
}

int TemperatureAt(const Sky& sky, int second)
{
    const double hour = second / static_cast<double>(kHour);
    return sky.meanTemperature + static_cast<int>(std::lround(11 * std::sin((hour - 10) * std::numbers::pi / 12)));
}

// Gust to pressure; a sensor that is missing sends dots.
std::string Values(SampleDay& day, const Sky& sky, int second, bool bRainGauge)
{
    const std::string rain =
        bRainGauge ? Join({"r", Digits(day.Below(4), 3), "p", Digits(sky.rain + 12, 3), "P", Digits(sky.rain, 3)})
                   : std::string("r...p...P...");
    return Join({"g", Digits(sky.wind + day.Between(0, 8), 3), "t", Temperature(TemperatureAt(sky, second)), rain, "h",
                 Digits(day.Between(30, 99), 2), "b", Digits(sky.pressure, 5)});
}

std::string Hex(int value)
{
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    std::string text;
    for (int shift = 12; shift >= 0; shift -= 4)
        text += kHexDigits[static_cast<std::size_t>(value >> shift & 15)];
    return text;
}

std::string Ultimeter(const Sky& sky, int second)
{
    return Join({"$ULTW", Hex(sky.wind * 16), Hex(sky.windDirection * 255 / 360), Hex(TemperatureAt(sky, second) * 10),
                 Hex(sky.rain), Hex(sky.pressure), "FFEF", "85D7", "0001", Hex(643), "00A5", Hex(second / kMinute),
                 Hex(sky.rain), Hex(sky.wind * 12)});
}

void Drift(SampleDay& day, Sky& sky)
{
    sky.windDirection = (sky.windDirection + day.Between(-15, 15) + 360) % 360;
    sky.wind = std::max(0, sky.wind + day.Between(-2, 2));
    sky.pressure += day.Between(-6, 5);
    sky.rain += day.Chance(20) ? day.Between(1, 9) : 0;
}

void AddStation(SampleDay& day, const Town& town, int kind)
{
    const std::string call = Join({day.NewCall(town.prefix), kind == 0 ? "" : "-13"});
    const std::string position = packet_text::PlainPosition(day.Near(town), "/_");
    const std::string head = Join({call, ">APXWX1,", day.Chance(70) ? day.InternetPath() : day.RadioPath(town), ":"});
    const std::string_view software = day.Pick(kSoftware);
    const bool bRainGauge = day.Chance(70);
    Sky sky{64 - static_cast<int>((town.lat - 40) * 0.9), day.Below(360), day.Between(1, 12), 10080 + day.Below(160),
            0};
    const int period = day.Between(80, 110) * kMinute;
    for (int at = day.Below(period); at < kDay; at += period) {
        Drift(day, sky);
        const std::string wind = packet_text::CourseSpeed({sky.windDirection, sky.wind});
        const std::string values = Values(day, sky, at, bRainGauge);
        if (kind == 1) {
            day.Add(at, Join({head, "_06", SampleDay::ZuluStamp(at).substr(0, 6), "c", Digits(sky.windDirection, 3),
                              "s", Digits(sky.wind, 3), values, software}));
        } else if (kind == 2) {
            day.Add(at, Join({head, Ultimeter(sky, at)}));
        } else {
            day.Add(at, Join({head, "@", SampleDay::ZuluStamp(at), position, wind, values, software}));
        }
    }
}

} // namespace

void AddWeatherStations(SampleDay& day)
{
    for (int i = 0; i < kStations; ++i) {
        const auto spread = static_cast<std::size_t>(i) * Towns().size() / kStations;
        AddStation(day, Towns()[spread], i % 16 == 5 ? 2 : i % 9 == 4 ? 1 : 0);
    }
}

} // namespace ruvenmark::sample
