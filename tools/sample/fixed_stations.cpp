// Homes, digipeaters and gates: they say the same all day long.

#include "sample_day.h"

#include <array>

namespace ruvenmark::sample {

namespace {

using packet_text::Digits;
using packet_text::Join;

constexpr auto kHomeSymbols = std::to_array<std::string_view>({"/-", "/-", "/y", "/I", "\\-", "/E", "/;", "/R", "/Y"});
constexpr auto kDestinations = std::to_array<std::string_view>({"APRS42", "APXN10", "APXW07", "APXD21"});
constexpr auto kStates = std::to_array<std::string_view>({
    "QRV all day, call on 145.500",
    "In the shack",
    "Out in the garden, back at six",
    "Building a new antenna",
    "Testing, please ignore",
    "Gate up and running, 12.6V",
    "On the road until Sunday",
});

// Locator of six letters and digits.
std::string Locator(Place place)
{
    const double lon = place.lon + 180;
    const double lat = place.lat + 90;
    const auto letter = [](char first, double value) { return static_cast<char>(first + static_cast<int>(value)); };
    std::string text;
    text += letter('A', lon / 20);
    text += letter('A', lat / 10);
    text += letter('0', (lon - static_cast<int>(lon / 20) * 20) / 2);
    text += letter('0', lat - static_cast<int>(lat / 10) * 10);
    text += letter('A', (lon - static_cast<int>(lon / 2) * 2) * 12);
    text += letter('A', (lat - static_cast<int>(lat)) * 24);
    return text;
}

void AddHome(SampleDay& day, const Town& town)
{
    const std::string call = day.NewCall(town.prefix);
    const Place place = day.Near(town);
    const std::string head =
        Join({call, ">", day.Pick(kDestinations), ",", day.Chance(60) ? day.InternetPath() : day.RadioPath(town), ":"});
    const std::string_view symbol = day.Pick(kHomeSymbols);
    const bool bCompressed = day.Chance(15);
    const std::string position =
        bCompressed ? packet_text::CompressedPosition(place, symbol, {}) : packet_text::PlainPosition(place, symbol);
    const std::string reach = day.Chance(25) && !bCompressed
                                  ? Join({"PHG", Digits(day.Between(2, 5), 1), Digits(day.Between(1, 4), 1),
                                          Digits(day.Between(0, 6), 1), "0"})
                                  : std::string();
    const std::string report = Join({head, "=", position, reach, AnyComment(day, town)});
    const int period = day.Between(3, 5) * kHour;
    const int start = day.Below(period);
    for (int at = start; at < kDay; at += period)
        day.Add(at, report);
    if (day.Chance(60)) {
        const std::string stamp = day.Chance(50) ? SampleDay::ZuluStamp(start) : std::string();
        const std::string grid = stamp.empty() && day.Chance(30) ? Join({Locator(place), symbol, " "}) : std::string();
        day.Add(start + 90, Join({head, ">", stamp, grid, day.Pick(kStates)}));
    }
}

void AddDigi(SampleDay& day, const Town& town)
{
    const std::string call = Join({town.prefix, "QSO-", std::to_string(day.Between(1, 3))});
    const Place place = day.Near(town, 8);
    const std::string head = Join({call, ">APXD21,", day.Chance(50) ? "WIDE2-1,qAR," : "qAR,", town.prefix, "QTH-10:"});
    const std::string_view symbol = day.Chance(60) ? "1#" : "/#";
    const std::string phg = Join({"PHG", Digits(day.Between(3, 7), 1), Digits(day.Between(3, 6), 1),
                                  Digits(day.Between(3, 7), 1), Digits(day.Between(0, 8), 1)});
    const std::string comment = Join({town.name, " digi W2,", town.prefix, " 12.", std::to_string(day.Below(10)), "V"});
    const int period = 4 * kHour;
    for (int at = day.Below(period); at < kDay; at += period)
        day.Add(at, Join({head, "!", packet_text::PlainPosition(place, symbol), phg, comment}));
}

void AddGate(SampleDay& day, const Town& town)
{
    const std::string call = Join({town.prefix, "QTH-10"});
    const Place place = day.Near(town, 3);
    const std::string head = Join({call, ">APXG05,", day.InternetPath(), ":"});
    int heard = day.Between(3, 12);
    const int start = day.Below(3 * kHour);
    for (int at = start; at < kDay; at += 6 * kHour) {
        day.Add(at, Join({head, "@", SampleDay::ZuluStamp(at), packet_text::PlainPosition(place, "I&"), "Gate ",
                          town.name}));
        heard += day.Below(9);
        day.Add(at + 7 * kMinute,
                Join({head, "<IGATE,MSG_CNT=", std::to_string(day.Below(20)), ",LOC_CNT=", std::to_string(heard)}));
    }
}

} // namespace

void AddFixedStations(SampleDay& day)
{
    for (const Town& town : Towns()) {
        AddHome(day, town);
        if (day.Chance(35))
            AddHome(day, town);
        if (day.Chance(45))
            AddDigi(day, town);
        if (day.Chance(25))
            AddGate(day, town);
    }
}

} // namespace ruvenmark::sample
