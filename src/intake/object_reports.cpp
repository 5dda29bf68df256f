// ReportObjectItem: objects and items, which others report under a name.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "tracking/filters.h"

namespace ruvenmark {

namespace {

void WriteObjectNodes(MainWindow& main, Channel channel, const ObjectItemReport& report)
{
    FactWriter writer(main.tvStationList, channel, kPositions);
    writer.Station(report.name);
    writer.Fact("Sender", "Sender: ", report.sender, "", "Sender");
    writer.Fact("State", report.state == 1 ? "Valid" : "Cancelled", "State");
    writer.Counts();
}

} // namespace

void aprs_ReportObjectItem(MainWindow& main, Channel channel, const ObjectItemReport& report)
{
    if (IsFiltered(main, channel, report.name, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, "ReportObjectItem", [&] {
        WriteObjectNodes(main, channel, report);
        const std::string_view word = Traits(channel).word;
        if (report.state == 0)
            DeleteMarker(main, word, MarkerName(word, report.name));
    });
    EnsureRecord(main.Of(channel), report.name).Set(Field::Sender, report.sender);
}

} // namespace ruvenmark
