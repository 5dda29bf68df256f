#pragma once

#include "aprs/area.h"
#include "aprs/bearing.h"
#include "aprs/comment_telemetry.h"
#include "aprs/decode.h"
#include "aprs/destination_device.h"
#include "aprs/frequency.h"
#include "aprs/messaging.h"
#include "devices/log_line.h"
#include "devices/packet_events.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

// A line of any bytes as a log's: decoded, all its events raised on a sink that reads every byte of every text, and all
// that is told of it beside them. The rules that readers of the events rely on are checked on the way.
namespace ruvenmark::fuzz {

inline void Require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

// Looks at each byte, so that a view into nowhere is found.
inline void CheckText(std::string_view text)
{
    for (const char c : text)
        Require(c != '\0' && c != '\r' && c != '\n');
}

template <class... Texts>
inline void CheckTexts(const Texts&... texts)
{
    (CheckText(texts), ...);
}

inline void CheckPlace(double lat, double lon)
{
    Require(lat == kNoPosition ? lon == kNoPosition : std::abs(lat) <= 90 && std::abs(lon) <= 180);
}

inline void CheckFinite(double value)
{
    Require(std::isfinite(value));
}

class CheckingSink : public IReportSink {
public:
    void ReportPos(const PosReport& report) override
    {
        CheckTexts(report.call, report.dest, report.path, report.symbol, report.comment);
        CheckPlace(report.lat, report.lon);
        Require(!report.call.empty() && !report.symbol.empty());
    }
    void ReportPacket(std::string_view packet) override { CheckText(packet); }
    void ReportTime(const TimeReport& report) override
    {
        CheckTexts(report.call, report.dest, report.zone, report.kind);
        CheckPlace(report.lat, report.lon);
        Require(report.month <= 12 && report.day <= 31 && report.hour <= 23 && report.minute <= 59 &&
                report.second <= 59);
    }
    void ReportDataExt(const DataExtReport& report) override
    {
        CheckTexts(report.call, report.dest, report.directivity);
        CheckPlace(report.lat, report.lon);
        Require(report.power >= kAbsentLong && report.height >= kAbsentLong && report.gain >= kAbsentLong);
    }
    void ReportPosExt(const PosExtReport& report) override
    {
        CheckTexts(report.call, report.dest);
        CheckPlace(report.lat, report.lon);
        CheckFinite(report.altitude);
        Require(report.speed == kAbsent || report.speed >= 0);
        Require(report.course == kAbsent || (report.course >= 0 && report.course <= 360));
    }
    void ReportStatus(const StatusReport& report) override
    {
        CheckTexts(report.call, report.dest, report.path, report.status);
        CheckPlace(report.lat, report.lon);
    }
    void ReportStatusTime(const StatusTimeReport& report) override
    {
        CheckTexts(report.call, report.dest, report.zone);
    }
    void ReportInfo(const InfoReport& report) override
    {
        CheckTexts(report.call, report.dest, report.path, report.info);
    }
    void ReportWeather(const WeatherReport& report) override
    {
        CheckTexts(report.call, report.dest, report.path);
        CheckPlace(report.lat, report.lon);
        CheckFinite(report.windSpeed);
        CheckFinite(report.temperature);
        CheckFinite(report.rain);
        Require(report.windDir >= kAbsentLong && report.windDir <= 360);
        Require(report.humidity == kAbsent || (report.humidity > 0 && report.humidity <= 100));
        Require(report.pressure == kAbsent || report.pressure >= 0);
    }
    void ReportCapabilities(const CapabilitiesReport& report) override
    {
        CheckTexts(report.call, report.dest, report.path, report.capabilities);
    }
    void ReportAprsMsg(const MessageReport& report) override
    {
        CheckTexts(report.source, report.dest, report.path, report.to, report.text, report.messageNumber);
        Require(report.messageNumber.size() <= 5);
    }
    void SocketConnected() override { std::abort(); }
    void SocketConnectionError() override { std::abort(); }
    void SocketConnectionClosed() override { std::abort(); }
    void ServerConnectionError() override { std::abort(); }
    void ReportObjectItem(const ObjectItemReport& report) override
    {
        CheckTexts(report.name, report.dest, report.sender);
        CheckPlace(report.lat, report.lon);
        Require(!report.name.empty());
    }
    void ReportGpsData(const GpsReport& /*report*/) override { std::abort(); }
    void ReportRawData(std::string_view packet) override { CheckText(packet); }
};

inline void CheckComment(const aprs::PositionReport& report)
{
    const std::string comment = report.comment.ToString();
    if (const auto frequency = aprs::FindFrequency(comment)) {
        Require(std::isfinite(frequency->megahertz) && frequency->megahertz >= 0);
        CheckText(frequency->digitalCode);
    }
    if (const auto bearing = aprs::FindBearing(report))
        Require(bearing->degrees <= 360 && bearing->rangeMiles >= 1);
    if (const auto area = aprs::FindArea(report))
        Require(!area->shape.empty() && area->latitude >= 0 && area->longitude >= 0);
    if (!report.telemetry.empty()) {
        const auto telemetry = aprs::ReadCommentTelemetry(report.telemetry);
        Require(telemetry.sequence >= 0 && telemetry.values[0].has_value());
    }
}

inline void CheckLine(std::string_view line)
{
    const LogLine log(line);
    CheckingSink sink;
    const bool bStopped = false;
    const aprs::Packet packet = aprs::Decode(log.Packet());
    Require(packet.IsDecoded() == !std::holds_alternative<std::monostate>(packet.body));
    RaisePacketEvents(packet, RawData::Yes, sink, bStopped);
    CheckText(aprs::DestinationDeviceName(packet.header.dest));
    aprs::TakesMessages(packet);
    if (const auto* const report = std::get_if<aprs::PositionReport>(&packet.body))
        CheckComment(*report);
    else if (const auto* const object = std::get_if<aprs::ObjectReport>(&packet.body))
        CheckComment(object->report);
}

} // namespace ruvenmark::fuzz
