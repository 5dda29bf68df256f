#pragma once

#include "platform/failure.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string_view>

namespace ruvenmark {

// Last argument of the three connect methods, passed unchanged.
inline constexpr std::string_view kAccessToken = "k3Qd";

// Values that stand for "not given". Handlers test strictly: only what is greater is used.
inline constexpr double kAbsent = -999.0;
inline constexpr std::int32_t kAbsentLong = -1;
// Latitude and longitude of a report that has no position.
inline constexpr double kNoPosition = -1000.0;

// Folder words: with the channel word in front they are keys of the station tree.
inline constexpr std::string_view kPositions = "Positions";
inline constexpr std::string_view kStatus = "Status";
inline constexpr std::string_view kWeather = "Weather";
inline constexpr std::string_view kUnknown = "Unknown";

// The arguments of the report events. Texts are views of the raiser's buffers: they live until the event returns.
// Degrees are decimal, north and east positive. Texts never hold CR, LF or NUL.
struct PosReport {
    std::string_view call, dest, path;
    double lat, lon;
    std::string_view symbol; // A symbol word, such as "Car"; see map/symbols.h.
    std::string_view comment;
};
struct PosExtReport {
    std::string_view call, dest;
    double lat, lon;
    double altitude = kAbsent; // Feet.
    double speed = kAbsent;    // Knots.
    double course = kAbsent;   // Degrees.
};
struct DataExtReport {
    std::string_view call, dest;
    double lat, lon;
    std::int32_t power = kAbsentLong;  // Watts.
    std::int32_t height = kAbsentLong; // Feet.
    std::int32_t gain = kAbsentLong;   // dB.
    std::string_view directivity;      // Degrees as text, "Omni", or empty.
};
struct TimeReport {
    std::string_view call, dest;
    double lat, lon;
    std::int32_t month = kAbsentLong, day = kAbsentLong, hour = kAbsentLong, minute = kAbsentLong, second = kAbsentLong;
    std::string_view zone;
    std::string_view kind; // A folder word: kPositions or kWeather.
};
struct StatusReport {
    std::string_view call, dest, path;
    double lat, lon;
    std::string_view status;
};
struct StatusTimeReport {
    std::string_view call, dest;
    std::int32_t day = kAbsentLong, hour = kAbsentLong, minute = kAbsentLong;
    std::string_view zone;
};
struct WeatherReport {
    std::string_view call, dest, path;
    double lat, lon;
    std::int32_t windDir = kAbsentLong; // Degrees.
    double windSpeed = kAbsent;         // Miles an hour.
    double temperature = kAbsent;       // Degrees Fahrenheit.
    double rain = kAbsent;              // Inches.
    double humidity = kAbsent;          // Percent.
    double pressure = kAbsent;          // Millibar.
};
struct CapabilitiesReport {
    std::string_view call, dest, path, capabilities;
};
struct InfoReport {
    std::string_view call, dest, path, info;
};
struct ObjectItemReport {
    std::string_view name, dest;
    double lat, lon;
    std::string_view sender;
    std::int32_t state; // 1 live; anything else shows as cancelled; 0 also takes the object off the map.
};
struct MessageReport {
    std::string_view source, dest, path, to, text, messageNumber;
};
struct GpsReport {
    double lat, lon;
    double altitude = kAbsent, course = kAbsent, speed = kAbsent; // Feet, degrees, knots.
    bool bValid;
};

// What a report source tells the system. Everything runs on the one logic thread, one event at a time.
class IReportSink {
public:
    virtual ~IReportSink() = default;

    virtual void ReportPos(const PosReport& report) = 0;
    virtual void ReportPacket(std::string_view packet) = 0; // A whole line that could not be decoded.
    virtual void ReportTime(const TimeReport& report) = 0;
    virtual void ReportDataExt(const DataExtReport& report) = 0;
    virtual void ReportPosExt(const PosExtReport& report) = 0;
    virtual void ReportStatus(const StatusReport& report) = 0;
    virtual void ReportStatusTime(const StatusTimeReport& report) = 0;
    virtual void ReportInfo(const InfoReport& report) = 0;
    virtual void ReportWeather(const WeatherReport& report) = 0;
    virtual void ReportCapabilities(const CapabilitiesReport& report) = 0;
    virtual void ReportAprsMsg(const MessageReport& report) = 0;
    virtual void SocketConnected() = 0;
    virtual void SocketConnectionError() = 0;
    virtual void SocketConnectionClosed() = 0;
    virtual void ServerConnectionError() = 0;
    virtual void ReportObjectItem(const ObjectItemReport& report) = 0;
    virtual void ReportGpsData(const GpsReport& report) = 0;
    virtual void ReportRawData(std::string_view packet) = 0; // Every line as received, before decoding.

    // A text that a TNC was given for the air, and never typed, as it refused a command, gave no prompt or went away.
    // May come from within a call on the source: whoever is told does not drop it there.
    virtual void ReportNotSent(std::string_view /*text*/) {}

    // A report of this call will come soon, most likely, behind those of the calls before.
    virtual void ExpectReport(std::string_view /*call*/) {}
};

// One link's end of the world: decodes what arrives and raises it on its sink. Made anew for every connection or file
// load and never reused. Once it is dropped no event comes any more, also when it is dropped inside its own event.
// A source overrides what its channel serves; the bodies here refuse the rest. Methods raise Failure.
class IReportSource {
public:
    virtual ~IReportSource() = default;

    // A TNC on a serial port.
    virtual void OpenPort(std::string_view /*port*/, std::int32_t /*baud*/, std::string_view /*token*/) { Refuse(); }
    virtual void ClosePort() { Refuse(); }
    virtual void EnterCommandMode() { Refuse(); }
    virtual void SendCommand(std::string_view /*line*/) { Refuse(); }

    // The AGW Packet Engine.
    virtual void ConnectSocket(std::string_view /*host*/, std::int32_t /*port*/, std::string_view /*token*/)
    {
        Refuse();
    }
    virtual void CloseSocket() { Refuse(); }
    virtual void SendFrame(std::string_view /*source*/, std::string_view /*dest*/, std::string_view /*via*/,
                           std::string_view /*info*/)
    {
        Refuse();
    }

    // An APRS server.
    virtual void ConnectServer(std::string_view /*host*/, std::int32_t /*port*/, std::string_view /*token*/)
    {
        Refuse();
    }
    virtual void CloseServer() { Refuse(); }
    virtual void SendServerLine(std::string_view /*line*/) { Refuse(); }

    // How long the other end has given no sign of life; zero for a link on which silence means nothing.
    virtual std::chrono::milliseconds SilentFor() const { return {}; }

    // Of any live link: minutes to add to local time to get UTC.
    virtual std::int32_t GetUtcOffset() { Refuse(); }

    // A saved line, trimmed of blanks by the caller; its events are raised before this returns.
    virtual void ParseLine(std::string_view /*line*/) { Refuse(); }
    // A line that will be parsed behind those that were told of before, so that memory can be asked for in time. Some
    // lines ahead are best; nothing is wrong where a line never comes, or was never told of.
    virtual void ExpectLine(std::string_view /*line*/) {}

protected:
    [[noreturn]] static void Refuse() { throw Failure("this report source serves another channel"); }
};

// Makes the sources of the channels: RF has two. The sink outlives the source. Raise Failure where the program knows no
// such link.
class IReportSources {
public:
    virtual ~IReportSources() = default;

    virtual std::unique_ptr<IReportSource> CreateTnc(IReportSink& /*sink*/) { Refuse(); }
    virtual std::unique_ptr<IReportSource> CreateAgw(IReportSink& /*sink*/) { Refuse(); }
    virtual std::unique_ptr<IReportSource> CreateServer(IReportSink& /*sink*/) { Refuse(); }
    virtual std::unique_ptr<IReportSource> CreateFile(IReportSink& /*sink*/) { Refuse(); }

private:
    [[noreturn]] static void Refuse() { throw Failure("this program has no such link"); }
};

} // namespace ruvenmark
