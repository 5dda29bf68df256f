// Any bytes as a packet line: decoded, and all its events raised on a sink that reads every byte of every text. The
// rules that readers of the events rely on are checked on the way.

#include "aprs/decode.h"
#include "devices/packet_events.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace ruvenmark;

void Require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

// Looks at each byte, so that a view into nowhere is found.
void CheckText(std::string_view text)
{
    for (const char c : text)
        Require(c != '\0' && c != '\r' && c != '\n');
}

template <class... Texts>
void CheckTexts(const Texts&... texts)
{
    (CheckText(texts), ...);
}

void CheckPlace(double lat, double lon)
{
    Require(lat == kNoPosition ? lon == kNoPosition : std::abs(lat) <= 90 && std::abs(lon) <= 180);
}

void CheckFinite(double value)
{
    Require(std::isfinite(value));
}

class CheckingSink final : public IReportSink {
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    CheckingSink sink;
    const bool bStopped = false;
    const aprs::Packet packet = aprs::Decode(line);
    Require(packet.IsDecoded() == !std::holds_alternative<std::monostate>(packet.body));
    RaisePacketEvents(packet, RawData::Yes, sink, bStopped);
    return 0;
}
