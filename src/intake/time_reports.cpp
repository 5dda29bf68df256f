// ReportStatusTime and ReportTime: the moment that a status, a position or a weather report was made for.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "platform/numbers.h"
#include "tracking/filters.h"

#include <string>

namespace ruvenmark {

namespace {

// At least two digits; "00" for a value that is not given.
std::string TwoDigits(std::int32_t value)
{
    if (value < 0)
        return "00";
    std::string text = ShortText(std::int64_t{value});
    if (text.size() < 2)
        text.insert(0, 1, '0');
    return text;
}

std::string StatusTimeText(const StatusTimeReport& report)
{
    // A day that is not given is announced with its letters in another order.
    std::string text = report.day < 0 ? "(DHM)" : "(DMH)";
    text += TwoDigits(report.day) + ":" + TwoDigits(report.hour) + ":" + TwoDigits(report.minute) + " ";
    text += report.zone;
    return text;
}

std::string TimeText(const TimeReport& report)
{
    const std::string hourMinute = TwoDigits(report.hour) + ":" + TwoDigits(report.minute);
    std::string text;
    if (report.kind == kWeather)
        text = "(MDHM)" + TwoDigits(report.month) + ":" + TwoDigits(report.day) + ":" + hourMinute + " ";
    else if (report.month != kAbsentLong || report.day != kAbsentLong)
        text = "(DHM)" + TwoDigits(report.day) + ":" + hourMinute + " ";
    else
        text = "(HMS)" + hourMinute + ":" + TwoDigits(report.second) + " ";
    text += report.zone;
    return text;
}

void FileTime(MainWindow& main, Channel channel, std::string_view folderWord, std::string_view call, Field field,
              std::string_view text)
{
    FactWriter writer(main.tvStationList, channel, folderWord);
    writer.Station(call);
    writer.Fact("Time", text, "Clock");
    writer.Counts();
    EnsureRecord(main.Of(channel), call).Set(field, text);
}

} // namespace

void aprs_ReportStatusTime(MainWindow& main, Channel channel, const StatusTimeReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, kNoPosition, kNoPosition))
        return;
    Attempt(main.abandoned, "ReportStatusTime",
            [&] { FileTime(main, channel, kStatus, report.call, Field::StatusTime, StatusTimeText(report)); });
}

void aprs_ReportTime(MainWindow& main, Channel channel, const TimeReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, "ReportTime", [&] {
        const Field field = report.kind == kPositions ? Field::PositionTime : Field::WeatherTime;
        FileTime(main, channel, report.kind, report.call, field, TimeText(report));
    });
}

} // namespace ruvenmark
