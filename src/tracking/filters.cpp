#include "tracking/filters.h"

#include "core/main_window.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "tracking/pattern.h"
#include "tracking/track_lists.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace ruvenmark {

namespace {

constexpr double kMaxLat = 90, kMaxLon = 180;

struct RangeTest {
    double range, lat, lon;
};

// Nothing where one of the three texts is empty or no number: then there is no range test.
std::optional<RangeTest> ReadRangeTest(const ReportFilter& filter)
{
    const auto range = ReadNumber(filter.Range);
    const auto lat = ReadNumber(filter.Lat);
    const auto lon = ReadNumber(filter.Lon);
    if (!range || !lat || !lon)
        return std::nullopt;
    return RangeTest{*range, *lat, *lon};
}

bool IsOnEarth(double lat, double lon)
{
    return std::abs(lat) <= kMaxLat && std::abs(lon) <= kMaxLon;
}

// The last way in: by distance. `bDrop` is the result of the lists.
bool DropsByRange(MainWindow& main, const ReportFilter& filter, double lat, double lon, bool bDrop)
{
    const auto test = ReadRangeTest(filter);
    if (!test)
        return bDrop;
    if (!IsOnEarth(lat, lon) || !IsOnEarth(test->lat, test->lon))
        return filter.bApply;
    Attempt(main.abandoned, "FilterReport", [&] {
        Map& map = main.mpCtrl.RequireMap();
        const double distance = map.Distance(map.GetLocation(test->lat, test->lon), map.GetLocation(lat, lon));
        bDrop = test->range < distance;
    });
    return bDrop;
}

// In the order of a channel's settings: the texts, then the flags.
constexpr std::array kTexts = {&ReportFilter::Dest,  &ReportFilter::Reject, &ReportFilter::Call,
                               &ReportFilter::Range, &ReportFilter::Lat,    &ReportFilter::Lon};
constexpr std::array kFlags = {&ReportFilter::bOn, &ReportFilter::bTracked, &ReportFilter::bApply};

Setting TextSetting(Channel channel, std::size_t i)
{
    return Behind(Traits(channel).firstFilterSetting, i);
}

Setting FlagSetting(Channel channel, std::size_t i)
{
    return TextSetting(channel, kTexts.size() + i);
}

} // namespace

bool MatchesList(std::string_view text, std::string_view list)
{
    for (const std::string_view piece : Split(list, ' '))
        if (piece.find('\0') == std::string_view::npos && MatchesPattern(text, Trim(piece)))
            return true;
    return false;
}

bool FilterReport(MainWindow& main, Channel channel, std::string_view call, std::string_view dest, double lat,
                  double lon)
{
    const ChannelState& state = main.Of(channel);
    const ReportFilter& filter = state.Filter;
    if (!filter.Dest.empty() && !MatchesList(ToUpper(dest), filter.Dest))
        return true;
    const std::string upperCall = ToUpper(call);
    if (!filter.Reject.empty() && MatchesList(upperCall, filter.Reject))
        return true;
    bool bDrop = false;
    if (!state.Tracked.IsEmpty() && filter.bTracked) {
        if (IsTracked(state, call))
            return false;
        bDrop = true;
    }
    if (!filter.Call.empty()) {
        if (MatchesList(upperCall, filter.Call))
            return false;
        bDrop = true;
    }
    return DropsByRange(main, filter, lat, lon, bDrop);
}

bool IsFiltered(MainWindow& main, Channel channel, std::string_view call, std::string_view dest, double lat, double lon)
{
    return main.Of(channel).Filter.bOn && FilterReport(main, channel, call, dest, lat, lon);
}

void LoadFilters(MainWindow& main)
{
    for (ChannelState& state : main.channels)
        for (std::size_t i = 0; i < kTexts.size(); ++i)
            state.Filter.*kTexts[i] = main.stored.Text(TextSetting(state.channel, i));
    for (ChannelState& state : main.channels)
        for (std::size_t i = 0; i < kFlags.size(); ++i)
            state.Filter.*kFlags[i] = main.stored.Flag(FlagSetting(state.channel, i));
}

void SaveFilters(MainWindow& main)
{
    for (const ChannelState& state : main.channels)
        for (std::size_t i = 0; i < kTexts.size(); ++i)
            main.stored.Set(TextSetting(state.channel, i), state.Filter.*kTexts[i]);
    for (const ChannelState& state : main.channels)
        for (std::size_t i = 0; i < kFlags.size(); ++i)
            main.stored.SetFlag(FlagSetting(state.channel, i), state.Filter.*kFlags[i]);
}

} // namespace ruvenmark
