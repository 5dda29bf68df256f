// Those under way: cars and lorries on motorways, people on foot and by bicycle, two balloons.

#include "routes.h"
#include "sample_day.h"

#include <array>
#include <cmath>
#include <functional>
#include <numbers>

namespace ruvenmark::sample {

namespace {

using packet_text::Join;
using packet_text::Movement;

constexpr double kKilometresPerDegree = 111.2;
constexpr double kRadian = std::numbers::pi / 180;
constexpr double kKmhPerKnot = 1.852;

enum class Form { MicE, Plain, Compressed, Nmea };

struct Traveller {
    std::string call;
    std::string_view symbol;
    Form form = Form::MicE;
    std::string path;
    std::string_view comment;
    int sequence = 0; // Of its telemetry.
};

double Distance(Place a, Place b)
{
    const double north = b.lat - a.lat;
    const double east = (b.lon - a.lon) * std::cos(a.lat * kRadian);
    return std::hypot(north, east) * kKilometresPerDegree;
}

int Course(Place a, Place b)
{
    const double north = b.lat - a.lat;
    const double east = (b.lon - a.lon) * std::cos(a.lat * kRadian);
    const int degrees = static_cast<int>(std::lround(std::atan2(east, north) / kRadian));
    return degrees <= 0 ? degrees + 360 : degrees;
}

Place Along(Place a, Place b, double share)
{
    return {a.lat + (b.lat - a.lat) * share, a.lon + (b.lon - a.lon) * share};
}

std::string Sentence(Place place, Movement movement, int second)
{
    const std::string plain = packet_text::PlainPosition(place, "/>");
    std::string text = Join({"GPRMC,", SampleDay::ClockStamp(second).substr(0, 6), ",A,", plain.substr(0, 7), "00,",
                             plain.substr(7, 1), ",", plain.substr(9, 8), "00,", plain.substr(17, 1), ",",
                             std::to_string(movement.knots), ".0,", std::to_string(movement.course), ".0,140626,,"});
    unsigned sum = 0;
    for (const char c : text)
        sum ^= static_cast<unsigned char>(c);
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    return Join({"$", text, "*", kHexDigits.substr(sum >> 4U, 1), kHexDigits.substr(sum & 15U, 1)});
}

void Report(SampleDay& day, Traveller& who, int second, Place place, Movement movement, int metres)
{
    const std::string comment = day.Chance(20) ? std::string(who.comment) : std::string();
    const int feet = static_cast<int>(metres / 0.3048);
    switch (who.form) {
    case Form::MicE: {
        const bool bFine = day.Chance(20);
        const std::string extra =
            bFine ? Join({packet_text::CommentTelemetry(++who.sequence % 8000, 430 + day.Below(9), 610),
                          packet_text::Dao(place)})
                  : std::string();
        day.Add(second, Join({who.call, ">", packet_text::MicEDestination(place, movement.knots > 2 ? 1 : 2), ",",
                              who.path, ":`", packet_text::MicEBody(place, who.symbol, movement), "`",
                              packet_text::MicEAltitude(metres), comment, extra, "_%"}));
        break;
    }
    case Form::Plain:
        day.Add(second, Join({who.call, ">APXT31,", who.path, ":", day.Chance(50) ? "/" : "@",
                              SampleDay::ClockStamp(second), packet_text::PlainPosition(place, who.symbol),
                              packet_text::CourseSpeed(movement), packet_text::Altitude(feet), comment}));
        break;
    case Form::Compressed:
        day.Add(second, Join({who.call, ">APXT32,", who.path, ":!",
                              packet_text::CompressedPosition(place, who.symbol, movement), packet_text::Altitude(feet),
                              comment}));
        break;
    case Form::Nmea:
        day.Add(second, Join({who.call, ">GPSMV,", who.path, ":", Sentence(place, movement, second)}));
        break;
    }
}

// Goes from point to point at about one speed and reports every few minutes.
void Travel(SampleDay& day, Traveller& who, std::span<const Place> points, int start, double kmh, int period)
{
    double now = start;
    double next = start;
    for (std::size_t leg = 0; leg + 1 < points.size(); ++leg) {
        const Place from = points[leg];
        const Place to = points[leg + 1];
        const double speed = kmh * (0.92 + day.Below(16) / 100.0);
        const double duration = Distance(from, to) / speed * kHour;
        for (; next < now + duration; next += period + day.Between(-15, 15)) {
            const Place place = day.Near(Along(from, to, (next - now) / duration), 0.08);
            const int knots = static_cast<int>(std::lround(speed / kKmhPerKnot)) + day.Between(-3, 3);
            Report(day, who, static_cast<int>(next), place, {Course(from, to), std::max(0, knots)},
                   180 + day.Below(60));
        }
        now += duration;
    }
    Report(day, who, static_cast<int>(now), points.back(), {0, 0}, 190);
}

void AddDrivers(SampleDay& day)
{
    constexpr auto kComments = std::to_array<std::string_view>(
        {"146.520MHz on the road", "Unterwegs, QRV 145.500", "heading home", "433.500MHz mobil", "loaded, on time"});
    constexpr auto kSymbols = std::to_array<std::string_view>({"/>", "/>", "/k", "/u", "/v", "/j", "/<", "/R", "/U"});
    constexpr auto kForms = std::to_array<Form>({Form::MicE, Form::MicE, Form::Plain, Form::Compressed, Form::Plain});
    int number = 0;
    for (const Route& route : Routes()) {
        Traveller who;
        who.call = Join({day.NewCall(route.prefix), "-9"});
        who.symbol = day.Pick(kSymbols);
        who.form = number % 15 == 9 ? Form::Nmea : kForms[static_cast<std::size_t>(number) % kForms.size()];
        who.path = Join({"WIDE1-1,WIDE2-1,qAR,", route.prefix, "QTH-10"});
        who.comment = day.Pick(kComments);
        std::vector<Place> points(route.points.begin(), route.points.end());
        if (number % 3 == 1)
            points.assign(route.points.rbegin(), route.points.rend());
        Travel(day, who, points, day.Between(1, 14) * kHour, day.Between(82, 112), day.Between(220, 420));
        ++number;
    }
}

// Round trips of a few kilometres.
void AddWalkers(SampleDay& day)
{
    constexpr auto kTowns =
        std::to_array<std::string_view>({"Boulder", "Asheville", "Flagstaff", "Innsbruck", "Salzburg", "Bern", "Oxford",
                                         "Tampere", "Clermont-Ferrand", "Brno"});
    int number = 0;
    for (const std::string_view name : kTowns) {
        const Town& town = TownNamed(name);
        const bool bBicycle = number % 2 == 0;
        Traveller who;
        who.call = Join({day.NewCall(town.prefix), bBicycle ? "-8" : "-7"});
        who.symbol = bBicycle ? "/b" : "/[";
        who.form = number % 3 == 0 ? Form::Plain : Form::MicE;
        who.path = day.RadioPath(town);
        who.comment = AnyComment(day, town);
        std::vector<Place> points(7);
        for (Place& point : points)
            point = day.Near(town, bBicycle ? 9 : 3);
        points.push_back(points.front());
        Travel(day, who, points, day.Between(6, 15) * kHour, bBicycle ? 17 : 4.6, bBicycle ? 6 * kMinute : 9 * kMinute);
        ++number;
    }
}

// Up at five metres a second to thirty kilometres, then down under the parachute, with the wind from the west.
void AddBalloon(SampleDay& day, std::string_view townName, int start)
{
    const Town& town = TownNamed(townName);
    Traveller who{Join({day.NewCall(town.prefix), "-11"}), "/O", Form::Plain, day.RadioPath(town),
                  "Balloon, 0.1W, please report landing"};
    constexpr int kStep = 75; // Seconds.
    Place place{town.lat, town.lon};
    double height = 300;
    bool bRising = true;
    for (int at = start; height > 200; at += kStep) {
        const int knots = 6 + static_cast<int>(height / 800);
        Report(day, who, at, place, {85, knots}, static_cast<int>(height));
        place.lon += knots * kKmhPerKnot * kStep / kHour / kKilometresPerDegree / std::cos(place.lat * kRadian);
        bRising = bRising && height < 30000;
        height += bRising ? 5.0 * kStep : -kStep * (4 + height / 1500);
    }
}

} // namespace

void AddMovingStations(SampleDay& day)
{
    AddDrivers(day);
    AddWalkers(day);
    AddBalloon(day, "Hays", 15 * kHour);
    AddBalloon(day, "Praha", 9 * kHour);
}

} // namespace ruvenmark::sample
