#include "ui/station_row.h"

#include "core/main_window.h"
#include "platform/local_time.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::array<std::string_view, kStationColumns> kTitles = {
    "Call", "Symbol", "Channel", "Last heard", "Distance", "Bearing", "Course", "Speed", "Path", "Comment"};

// Numbers in their order.
std::uint64_t KeyOf(std::optional<double> number)
{
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
    if (!number)
        return kUnknownSortKey;
    const auto bits = std::bit_cast<std::uint64_t>(*number);
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

// The first eight letters, case ignored: most texts differ within them.
std::uint64_t KeyOf(std::string_view text)
{
    if (text.empty())
        return kUnknownSortKey;
    return std::min(KeyPart(text, 0), kUnknownSortKey - 1);
}

// When the station was heard last, and by which path as far as one is known.
struct LastReport {
    std::int64_t heard = 0;
    std::string_view path;
};

LastReport LastReportOf(const Record& record)
{
    constexpr std::array<std::pair<Field, Field>, 3> kPaths = {{{Field::PositionReceived, Field::PositionPath},
                                                                {Field::StatusReceived, Field::StatusPath},
                                                                {Field::WeatherReceived, Field::WeatherPath}}};
    LastReport last;
    std::int64_t ofPath = -1;
    for (const auto& [received, path] : kPaths) {
        const std::int64_t at = SecondsOfLocalText(record.Get(received));
        last.heard = std::max(last.heard, at);
        if (at > ofPath && record.Has(path)) {
            ofPath = at;
            last.path = record.Get(path);
        }
    }
    return last;
}

std::string WithUnit(std::optional<double> number, std::string_view unit)
{
    return number ? ShortText(RoundDecimals(*number, 0)).append(unit) : std::string();
}

// One below the other: always with the tenths.
std::string MilesText(std::optional<double> miles)
{
    if (!miles)
        return {};
    std::string text = ShortText(RoundDecimals(*miles, 1));
    if (text.find('.') == std::string::npos)
        text += ".0";
    return text += " mi";
}

} // namespace

std::uint64_t KeyPart(std::string_view text, std::size_t part)
{
    std::uint64_t key = 0;
    const std::size_t first = part * sizeof key;
    for (std::size_t i = first; i < first + sizeof key; ++i)
        key = key << 8U | (i < text.size() ? static_cast<unsigned char>(ToUpper(text[i])) : 0U);
    return key;
}

std::string_view TitleOf(StationColumn column)
{
    return kTitles[static_cast<std::size_t>(column)];
}

bool FillRow(StationRow& row, const MainWindow& main, const std::optional<GeoPoint>& ownPlace)
{
    const Record* record = main.Of(row.channel).Stations.Find(row.call);
    if (!record)
        return false;
    row.symbol = record->Get(Field::Symbol);
    const LastReport last = LastReportOf(*record);
    row.heard = last.heard;
    row.path = last.path;
    row.comment = record->Get(Field::Comment);
    if (row.comment.empty())
        row.comment = record->Get(Field::Status);
    row.course = ReadNumber(record->Get(Field::Course));
    row.speed = ReadNumber(record->Get(Field::Speed));
    row.miles.reset();
    row.bearing.reset();
    const auto point = ownPlace ? PositionOf(*record) : std::nullopt;
    if (point) {
        row.miles = GreatCircleMiles(*ownPlace, *point);
        row.bearing = InitialBearing(*ownPlace, *point);
    }
    return true;
}

std::string TextOf(const StationRow& row, StationColumn column)
{
    switch (column) {
    case StationColumn::Call:
        return row.call;
    case StationColumn::Symbol:
        return row.symbol;
    case StationColumn::Channel:
        return std::string(Traits(row.channel).word);
    case StationColumn::LastHeard:
        return LocalTextOfSeconds(row.heard);
    case StationColumn::Distance:
        return MilesText(row.miles);
    case StationColumn::Bearing:
        return WithUnit(row.bearing, "°");
    case StationColumn::Course:
        return WithUnit(row.course, "°");
    case StationColumn::Speed:
        return WithUnit(row.speed, " mph");
    case StationColumn::Path:
        return row.path;
    case StationColumn::Comment:
        return row.comment;
    }
    return {};
}

std::string_view SortText(const StationRow& row, StationColumn column)
{
    switch (column) {
    case StationColumn::Call:
        return row.call;
    case StationColumn::Symbol:
        return row.symbol;
    case StationColumn::Channel:
        return Traits(row.channel).word;
    case StationColumn::Path:
        return row.path;
    case StationColumn::Comment:
        return row.comment;
    default:
        return {};
    }
}

std::uint64_t SortKeyOf(const StationRow& row, StationColumn column)
{
    switch (column) {
    case StationColumn::LastHeard:
        return row.heard == 0 ? kUnknownSortKey : static_cast<std::uint64_t>(row.heard);
    case StationColumn::Distance:
        return KeyOf(row.miles);
    case StationColumn::Bearing:
        return KeyOf(row.bearing);
    case StationColumn::Course:
        return KeyOf(row.course);
    case StationColumn::Speed:
        return KeyOf(row.speed);
    default:
        return KeyOf(SortText(row, column));
    }
}

} // namespace ruvenmark
