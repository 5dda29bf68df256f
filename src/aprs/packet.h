#pragma once

#include "aprs/comment.h"
#include "aprs/refusal.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

// What one packet line says. All texts are views of the line (or constants): a packet is good as long as its line.
namespace ruvenmark::aprs {

struct Header {
    std::string_view source, dest;
    std::string_view path; // All behind the destination, as written: used digipeaters with their stars, q-construct.
};

// Permanent stands for no time: 111111z, of objects that are there for good.
enum class TimeForm : std::uint8_t { None, DayHourMinute, HourMinuteSecond, MonthDayHourMinute, Permanent };

struct TimeStamp {
    std::string_view text; // As on the air; empty where the packet has none.
    TimeForm form = TimeForm::None;
    bool bLocal = false; // Of the sender, else UTC.
    std::uint8_t month = 0, day = 0, hour = 0, minute = 0, second = 0;

    bool IsGiven() const { return form != TimeForm::None && form != TimeForm::Permanent; }
    bool IsBad() const { return !text.empty() && form == TimeForm::None; }
};

struct Symbol {
    char table = '/'; // '/', '\\' or an overlay 0-9 A-Z on the alternate table.
    char code = '/';
};

enum class PositionForm : std::uint8_t { Plain, Compressed, MicE, Nmea, Grid };

struct Position {
    double latitude = 0, longitude = 0; // Degrees; the middle of the box where digits were left blank.
    Symbol symbol;
    PositionForm form = PositionForm::Plain;
    std::uint8_t ambiguity = 0; // Digits left blank, 0 to 4.
};

// The station's reach: PHG (with power) or DFS (signal strength instead).
struct Reach {
    std::string_view digits; // "5132", or "51326" with the beacon rate.
    bool bDirectionFinding = false;
    std::optional<std::int32_t> power;  // Watts.
    std::optional<std::int32_t> height; // Feet above average terrain.
    std::int32_t gain = 0;              // dB.
    std::string_view directivity;       // Degrees, or "Omni", or empty where the digit means nothing.
};

// What a packet's body may be is made for each packet: a constructor of its own keeps its making from clearing every
// byte first.
struct Weather {
    Weather() {} // NOLINT(modernize-use-equals-default): see above.

    std::optional<double> windDirection; // Degrees.
    std::optional<double> windSpeed;     // Miles an hour, as are gusts.
    std::optional<double> gust;
    std::optional<double> temperature; // Degrees Fahrenheit.
    std::optional<double> rainHour;    // Inches.
    std::optional<double> rainDay;
    std::optional<double> rainMidnight;
    std::optional<double> snowDay;
    std::optional<double> humidity;   // Percent.
    std::optional<double> pressure;   // Millibar.
    std::optional<double> luminosity; // Watts a square metre.
};

struct PositionReport {
    PositionReport() {} // NOLINT(modernize-use-equals-default)

    Position position;
    TimeStamp time;
    std::optional<double> altitude; // Feet.
    std::optional<double> speed;    // Knots.
    std::optional<double> course;   // Degrees, 1 to 360.
    std::optional<double> range;    // Miles.
    std::optional<Reach> reach;
    std::string_view telemetry;  // Base-91 digits between their bars, if any.
    std::string_view micEStatus; // Such as "En Route"; empty but for Mic-E.
    std::string_view device;     // Sender's radio, as far as Mic-E tells it.
    Comment comment;
    std::optional<Weather> weather; // Of a weather station at the position.
};

struct ObjectReport {
    ObjectReport() {} // NOLINT(modernize-use-equals-default)

    std::string_view name; // Without the blanks that pad it.
    bool bItem = false;
    bool bAlive = true;
    PositionReport report;
};

struct WeatherReport {
    WeatherReport() {} // NOLINT(modernize-use-equals-default)

    TimeStamp time;
    Weather weather;
    std::string_view comment; // Sender's software, as a rule.
};

struct GridPosition {
    std::string_view locator;
    double latitude = 0, longitude = 0; // Its middle.
};

struct StatusReport {
    StatusReport() {} // NOLINT(modernize-use-equals-default)

    TimeStamp time;
    std::string_view text; // Behind the time; a locator stays in it.
    std::optional<GridPosition> grid;
};

struct GridBeacon {
    GridPosition grid;
    std::string_view comment;
};

enum class MessageKind : std::uint8_t { Text, Acknowledgement, Rejection, Bulletin, TelemetryDefinition };

struct Message {
    Message() {} // NOLINT(modernize-use-equals-default)

    MessageKind kind = MessageKind::Text;
    std::string_view addressee; // Without the blanks that pad it.
    std::string_view text;      // Without the number at its end; empty for acknowledgements and rejections.
    std::string_view id;        // The message's own number.
    std::string_view ack;       // Number acknowledged, in an acknowledgement or at the end of a message.
    std::string_view rejected;  // Number rejected.
};

struct Telemetry {
    Telemetry() {} // NOLINT(modernize-use-equals-default)

    std::string_view sequence;
    std::array<std::optional<double>, 5> values;
    std::string_view bits; // Up to eight of '0' and '1'.
    std::string_view comment;
};

struct Capabilities {
    std::string_view text;
};
struct Query {
    std::string_view text;
};
struct UserDefined {
    std::string_view id, data; // User and type, two bytes.
};
struct TestData {
    std::string_view text;
};

using Body = std::variant<std::monostate, PositionReport, ObjectReport, WeatherReport, StatusReport, GridBeacon,
                          Message, Telemetry, Capabilities, Query, UserDefined, TestData>;

struct Packet {
    explicit Packet(std::string_view lineText) : line(lineText) {}

    std::string_view line;       // Without its line end.
    Header header;               // Of the packet proper: of the inner one where it was relayed.
    std::optional<Header> relay; // Who relayed it, if it is third-party traffic.
    std::string_view info;       // Information field, data type byte first.
    Refusal refusal = Refusal::None;
    Body body;

    bool IsDecoded() const { return refusal == Refusal::None; }
};

} // namespace ruvenmark::aprs
