// ReportDataExt: a station's power, antenna and range.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "map/markers.h"
#include "map/range_circles.h"
#include "tracking/filters.h"

#include <array>
#include <string>

namespace ruvenmark {

namespace {

void FileDataExt(MainWindow& main, Channel channel, const DataExtReport& report)
{
    const std::array<FactValue, 4> values = {
        {{Field::Power, "Power: ", " watts", "Volumn", GivenText(report.power)},
         {Field::Height, "Height: ", " feet", "Up", GivenText(report.height)},
         {Field::Gain, "Gain: ", " db", "Gain", GivenText(report.gain)},
         {Field::Directivity, "Directivity: ", "", "Arrow", std::string(report.directivity)}}};
    FactWriter writer(main.tvStationList, channel, kPositions);
    writer.Station(report.call);
    writer.Given(values);
    writer.Counts();

    ChannelState& state = main.Of(channel);
    if (report.power > kAbsentLong && report.height > kAbsentLong && report.gain > kAbsentLong) {
        const double range = StationRange(report.power, report.height, report.gain);
        if (!(range > 0))
            return; // No record either.
        state.StationRanges.Set(report.call, range);
    }
    Record& record = EnsureRecord(state, report.call);
    SetGiven(record, values);
    RefreshMarkerNote(main, channel, report.call, record);
}

} // namespace

void aprs_ReportDataExt(MainWindow& main, Channel channel, const DataExtReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, "ReportDataExt", [&] { FileDataExt(main, channel, report); });
}

} // namespace ruvenmark
