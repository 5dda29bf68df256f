#include "links/report_sinks.h"

#include "core/main_window.h"
#include "intake/report_handlers.h"
#include "intake/stations_ahead.h"
#include "links/gps_link.h"
#include "links/link_status_rules.h"
#include "links/monitors.h"
#include "links/server_link.h"
#include "links/server_status_rules.h"
#include "links/tnc_link.h"
#include "messaging/receive_message.h"
#include "outgoing/send_report.h"

namespace ruvenmark {

namespace {

// What a TNC says of a command it did not take is shown, but nobody sent it.
bool IsPacketLine(std::string_view line)
{
    return line.find('>') < line.find(':');
}

class ReportSink final : public IReportSink {
public:
    ReportSink(MainWindow& main, Channel channel) : m_main(main), m_channel(channel) {}

    void ReportPos(const PosReport& report) override { aprs_ReportPos(m_main, m_channel, report); }
    void ReportPacket(std::string_view packet) override
    {
        if (m_channel == Channel::FL)
            ++m_main.links.FileRefused;
        aprs_ReportPacket(m_main, m_channel, packet);
    }
    void ReportTime(const TimeReport& report) override { aprs_ReportTime(m_main, m_channel, report); }
    void ReportDataExt(const DataExtReport& report) override { aprs_ReportDataExt(m_main, m_channel, report); }
    void ReportPosExt(const PosExtReport& report) override { aprs_ReportPosExt(m_main, m_channel, report); }
    void ReportStatus(const StatusReport& report) override { aprs_ReportStatus(m_main, m_channel, report); }
    void ReportStatusTime(const StatusTimeReport& report) override { aprs_ReportStatusTime(m_main, m_channel, report); }
    void ReportInfo(const InfoReport& report) override { aprs_ReportInfo(m_main, m_channel, report); }
    void ReportWeather(const WeatherReport& report) override { aprs_ReportWeather(m_main, m_channel, report); }
    void ReportCapabilities(const CapabilitiesReport& report) override
    {
        aprs_ReportCapabilities(m_main, m_channel, report);
    }
    void ReportAprsMsg(const MessageReport& report) override { aprs_ReportAprsMsg(m_main, m_channel, report); }
    void SocketConnected() override { aprs_SocketConnected(m_main); } // These three are RF's alone.
    void SocketConnectionError() override { aprs_SocketConnectionError(m_main); }
    void SocketConnectionClosed() override { aprs_SocketConnectionClosed(m_main); }
    void ServerConnectionError() override { aprstcp_ServerConnectionError(m_main); }
    void ReportObjectItem(const ObjectItemReport& report) override { aprs_ReportObjectItem(m_main, m_channel, report); }
    void ReportGpsData(const GpsReport& report) override
    {
        if (m_channel == Channel::RF)
            aprs_ReportGpsData(m_main, report);
    }
    void ReportRawData(std::string_view packet) override
    {
        if (m_channel != Channel::FL)
            m_main.links.LineHeard.Raise(packet);
        if (m_channel == Channel::RF) {
            aprs_ReportRawData(m_main, packet);
            if (IsPacketLine(packet))
                NoteRadioLine(m_main);
        }
        if (m_channel == Channel::TCP) {
            aprstcp_ReportRawData(m_main, packet);
            NoteServerLine(m_main, packet);
        }
    }
    void ReportNotSent(std::string_view text) override { aprs_ReportNotSent(m_main, text); }
    void ExpectReport(std::string_view call) override { m_ahead.Expect(m_main, m_main.Of(m_channel), call); }

private:
    MainWindow& m_main;
    Channel m_channel;
    StationsAhead m_ahead;
};

} // namespace

std::unique_ptr<IReportSink> MakeReportSink(MainWindow& main, Channel channel)
{
    return std::make_unique<ReportSink>(main, channel);
}

} // namespace ruvenmark
