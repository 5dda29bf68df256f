// ReportDataExt, ReportObjectItem and ReportPacket.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "map/range_circles.h"
#include "platform/numbers.h"
#include "tracking/filters.h"

#include <array>
#include <string>

namespace ruvenmark {

namespace {

struct StationValue {
    Field field; // Its name is the node's word.
    std::string_view label, unit, image;
    std::string text; // Empty when the value is not given.
};

std::string Given(std::int32_t value)
{
    return value > kAbsentLong ? ShortText(std::int64_t{value}) : std::string();
}

void FileDataExt(MainWindow& main, Channel channel, const DataExtReport& report)
{
    const std::array<StationValue, 4> values = {
        {{Field::Power, "Power: ", " watts", "Volumn", Given(report.power)},
         {Field::Height, "Height: ", " feet", "Up", Given(report.height)},
         {Field::Gain, "Gain: ", " db", "Gain", Given(report.gain)},
         {Field::Directivity, "Directivity: ", "", "Arrow", std::string(report.directivity)}}};
    FactWriter writer(main.tvStationList, channel, kPositions);
    writer.Station(report.call);
    for (const auto& value : values)
        if (!value.text.empty())
            writer.Fact(FieldName(value.field), value.label, value.text, value.unit, value.image);
    writer.Counts();

    ChannelState& state = main.Of(channel);
    if (report.power > kAbsentLong && report.height > kAbsentLong && report.gain > kAbsentLong) {
        const double range = StationRange(report.power, report.height, report.gain);
        if (!(range > 0))
            return; // No record either.
        state.StationRanges.Set(report.call, range);
    }
    Record& record = EnsureRecord(state, report.call);
    for (const auto& value : values)
        if (!value.text.empty())
            record.Set(value.field, value.text);
    RefreshMarkerNote(main, channel, report.call);
}

void WriteObjectNodes(MainWindow& main, Channel channel, const ObjectItemReport& report)
{
    FactWriter writer(main.tvStationList, channel, kPositions);
    writer.Station(report.name);
    writer.Fact("Sender", "Sender: ", report.sender, "", "Sender");
    writer.Fact("State", report.state == 1 ? "Valid" : "Cancelled", "State");
    writer.Counts();
}

} // namespace

void aprs_ReportDataExt(MainWindow& main, Channel channel, const DataExtReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, "ReportDataExt", [&] { FileDataExt(main, channel, report); });
}

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

void aprs_ReportPacket(MainWindow& main, Channel channel, std::string_view packet)
{
    if (!main.Of(channel).bShowUnknown || packet.empty()) // Nothing would be the key of the folder itself.
        return;
    Attempt(main.abandoned, "ReportPacket", [&] {
        FactWriter writer(main.tvStationList, channel, kUnknown);
        writer.Station(packet, "Question");
        writer.Counts();
    });
}

} // namespace ruvenmark
