#include "app/followed_sources.h"

#include "platform/text.h"

#include <ostream>

namespace ruvenmark {

class FollowingSink final : public IReportSink {
public:
    FollowingSink(IReportSink& sink, std::ostream& out) : m_sink(sink), m_out(out) {}

    void ReportRawData(std::string_view packet) override
    {
        m_out << TerminalText(packet) << std::endl; // Whoever reads it waits for it.
        m_sink.ReportRawData(packet);
    }

    void ReportPos(const PosReport& report) override { m_sink.ReportPos(report); }
    void ReportPacket(std::string_view packet) override { m_sink.ReportPacket(packet); }
    void ReportTime(const TimeReport& report) override { m_sink.ReportTime(report); }
    void ReportDataExt(const DataExtReport& report) override { m_sink.ReportDataExt(report); }
    void ReportPosExt(const PosExtReport& report) override { m_sink.ReportPosExt(report); }
    void ReportStatus(const StatusReport& report) override { m_sink.ReportStatus(report); }
    void ReportStatusTime(const StatusTimeReport& report) override { m_sink.ReportStatusTime(report); }
    void ReportInfo(const InfoReport& report) override { m_sink.ReportInfo(report); }
    void ReportWeather(const WeatherReport& report) override { m_sink.ReportWeather(report); }
    void ReportCapabilities(const CapabilitiesReport& report) override { m_sink.ReportCapabilities(report); }
    void ReportAprsMsg(const MessageReport& report) override { m_sink.ReportAprsMsg(report); }
    void SocketConnected() override { m_sink.SocketConnected(); }
    void SocketConnectionError() override { m_sink.SocketConnectionError(); }
    void SocketConnectionClosed() override { m_sink.SocketConnectionClosed(); }
    void ServerConnectionError() override { m_sink.ServerConnectionError(); }
    void ReportObjectItem(const ObjectItemReport& report) override { m_sink.ReportObjectItem(report); }
    void ReportGpsData(const GpsReport& report) override { m_sink.ReportGpsData(report); }

private:
    IReportSink& m_sink;
    std::ostream& m_out;
};

FollowedSources::FollowedSources(IReportSources& sources, std::ostream& out) : m_sources(sources), m_out(out) {}

FollowedSources::~FollowedSources() = default;

IReportSink& FollowedSources::Follow(IReportSink& sink)
{
    return *m_sinks.emplace_back(std::make_unique<FollowingSink>(sink, m_out));
}

std::unique_ptr<IReportSource> FollowedSources::CreateTnc(IReportSink& sink)
{
    return m_sources.CreateTnc(Follow(sink));
}

std::unique_ptr<IReportSource> FollowedSources::CreateAgw(IReportSink& sink)
{
    return m_sources.CreateAgw(Follow(sink));
}

std::unique_ptr<IReportSource> FollowedSources::CreateServer(IReportSink& sink)
{
    return m_sources.CreateServer(Follow(sink));
}

std::unique_ptr<IReportSource> FollowedSources::CreateFile(IReportSink& sink)
{
    return m_sources.CreateFile(sink);
}

} // namespace ruvenmark
