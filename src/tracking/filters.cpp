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

struct FilterText {
    std::string_view name;
    std::string ReportFilter::*text;
};
struct FilterFlag {
    std::string_view name;
    bool ReportFilter::*flag;
    std::string_view defaultValue;
};
constexpr std::array<FilterText, 6> kTexts = {{{"FilterDest", &ReportFilter::Dest},
                                               {"FilterReject", &ReportFilter::Reject},
                                               {"FilterCall", &ReportFilter::Call},
                                               {"FilterRange", &ReportFilter::Range},
                                               {"FilterLat", &ReportFilter::Lat},
                                               {"FilterLon", &ReportFilter::Lon}}};
constexpr std::array<FilterFlag, 3> kFlags = {{{"FilterOn", &ReportFilter::bOn, "False"},
                                               {"Tracked", &ReportFilter::bTracked, "True"},
                                               {"FilterApply", &ReportFilter::bApply, "False"}}};

std::string FilterKey(Channel channel, std::string_view name)
{
    return std::string(Traits(channel).filterPrefix) += name;
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
    const ISettingsStore& store = main.services.store;
    for (ChannelState& state : main.channels)
        for (const auto& [name, text] : kTexts)
            state.Filter.*text = store.Get(FilterKey(state.channel, name), "");
    for (ChannelState& state : main.channels)
        for (const auto& [name, flag, defaultValue] : kFlags)
            state.Filter.*flag = ToBool(store.Get(FilterKey(state.channel, name), defaultValue));
    main.tracking.bFiltersLoaded = true;
}

void SaveFilters(MainWindow& main)
{
    if (!main.tracking.bFiltersLoaded)
        return;
    ISettingsStore& store = main.services.store;
    for (const ChannelState& state : main.channels)
        for (const auto& [name, text] : kTexts)
            store.Set(FilterKey(state.channel, name), state.Filter.*text);
    for (const ChannelState& state : main.channels)
        for (const auto& [name, flag, defaultValue] : kFlags)
            store.Set(FilterKey(state.channel, name), BoolText(state.Filter.*flag));
}

} // namespace ruvenmark
