// ReportStatus, and the two other reports that are filed as a status is.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "tracking/filters.h"

#include <string>

namespace ruvenmark {

namespace {

// What the three reports differ in.
struct StatusKind {
    std::string_view report;
    std::string_view word;
    Field field;
};
constexpr StatusKind kStatusText = {"ReportStatus", "Status", Field::Status};
constexpr StatusKind kCapabilitiesText = {"ReportCapabilities", "Capabilities", Field::Capabilities};
constexpr StatusKind kInfoText = {"ReportInfo", "Info", Field::Info};

void FileStatus(MainWindow& main, Channel channel, const StatusKind& kind, const StatusReport& report)
{
    const std::string received(main.services.clock.LocalNowText());
    FactWriter writer(main.tvStationList, channel, kStatus);
    writer.Station(report.call, "Report");
    writer.Fact(kind.word, report.status, "Info");
    writer.Fact("Path", "Path: ", report.path, "", "Path");
    writer.Fact("Received", "Received: ", received, "", "Received");
    writer.Counts();
    Record& record = EnsureRecord(main.Of(channel), report.call);
    record.Set(kind.field, report.status);
    record.Set(Field::StatusPath, report.path);
    record.Set(Field::StatusReceived, received);
}

void TakeStatus(MainWindow& main, Channel channel, const StatusKind& kind, const StatusReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, kind.report, [&] { FileStatus(main, channel, kind, report); });
}

} // namespace

void aprs_ReportStatus(MainWindow& main, Channel channel, const StatusReport& report)
{
    TakeStatus(main, channel, kStatusText, report);
}

void aprs_ReportCapabilities(MainWindow& main, Channel channel, const CapabilitiesReport& report)
{
    TakeStatus(main, channel, kCapabilitiesText,
               {report.call, report.dest, report.path, kNoPosition, kNoPosition, report.capabilities});
}

void aprs_ReportInfo(MainWindow& main, Channel channel, const InfoReport& report)
{
    TakeStatus(main, channel, kInfoText,
               {report.call, report.dest, report.path, kNoPosition, kNoPosition, report.info});
}

} // namespace ruvenmark
