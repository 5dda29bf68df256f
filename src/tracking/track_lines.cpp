#include "tracking/track_lines.h"

#include "core/main_window.h"
#include "map/marker_names.h"
#include "map/selection.h"
#include "map/symbols.h"
#include "tracking/track_lists.h"

#include <array>

namespace ruvenmark {

namespace {

struct LineStyle {
    bool bBegin, bEnd;
};
constexpr std::array<std::int32_t, 9> kWeights = {0, 1, 2, 3, 4, 5, 8, 11, 13};
constexpr std::array<LineStyle, 4> kStyles = {{{false, false}, {false, true}, {true, false}, {true, true}}};
constexpr std::array<std::uint32_t, 8> kMobileColors = {0, 255, 65280, 65535, 16711680, 16711935, 16776960, 16777215};

// The value an index setting names; a default one for an index outside the table.
template <typename Table>
auto Choice(const SettingsState& settings, Setting setting, const Table& table)
{
    const std::int32_t index = SettingInt32(settings, setting);
    const bool bInside = index >= 0 && static_cast<std::size_t>(index) < table.size();
    return bInside ? table[static_cast<std::size_t>(index)] : typename Table::value_type{};
}

bool IsTrailShown(ChannelState& state, std::string_view call)
{
    const std::string key = TrackKey(call);
    if (const bool* bShown = state.TrackVisible.Find(key))
        return *bShown;
    state.TrackVisible.Add(key, true);
    return true;
}

void DrawTrackLine(MainWindow& main, ChannelState& state, std::string_view call, const Location& from,
                   const Location& to)
{
    // Settings first: one that is unusable must not leave a line behind that nobody knows.
    const std::int32_t weight = TrackLineWeight(main.Settings);
    const bool bBegin = TrackBeginArrow(main.Settings);
    const bool bEnd = TrackEndArrow(main.Settings);
    Shape line = main.mpCtrl.RequireMap().AddLine(from, to);
    line.SetWeight(weight);
    line.SetBeginArrowhead(bBegin);
    line.SetEndArrowhead(bEnd);
    state.TrackLines.Ensure(call).push_back(line);
    if (!IsTrailShown(state, call)) {
        line.SetBeginArrowhead(false);
        line.SetEndArrowhead(false);
        line.SetVisible(false);
        line.SetWeight(0);
    }
}

template <typename Object>
void DeleteAll(MainWindow& main, std::vector<Object>& objects)
{
    for (Object& object : objects)
        Attempt(main.abandoned, "RemoveTrack", [&] { object.Delete(); });
}

template <typename Object>
void RemoveEntry(MainWindow& main, Dictionary<std::vector<Object>>& entries, std::string_view call)
{
    if (auto* objects = entries.Find(call)) {
        DeleteAll(main, *objects);
        entries.Remove(call);
    }
}

template <typename Object>
void RemoveEntries(MainWindow& main, Dictionary<std::vector<Object>>& entries)
{
    for (auto& [call, objects] : entries)
        DeleteAll(main, objects);
    entries.Clear();
}

} // namespace

std::int32_t TrackLineWeight(const SettingsState& settings)
{
    return Choice(settings, Setting::TrackLineSize, kWeights);
}

bool TrackBeginArrow(const SettingsState& settings)
{
    return Choice(settings, Setting::TrackLineStyle, kStyles).bBegin;
}

bool TrackEndArrow(const SettingsState& settings)
{
    return Choice(settings, Setting::TrackLineStyle, kStyles).bEnd;
}

std::uint32_t MobileColor(const SettingsState& settings)
{
    return Choice(settings, Setting::MobileColor, kMobileColors);
}

void AddTrackPoint(MainWindow& main, Channel channel, std::string_view call, Pushpin pin, const Location& location,
                   std::string_view symbolWord)
{
    Map& map = main.mpCtrl.RequireMap();
    const Location from = pin.Location();
    if (map.Distance(from, location) <= kTrackStep)
        return;
    ChannelState& state = main.Of(channel);
    const std::string_view word = Traits(channel).word;
    pin.SetName(TrackPointName(word, call));
    const std::int32_t balloon = pin.BalloonState();
    state.TrackMarkers.Ensure(call).push_back(pin);
    pin.SetBalloonState(IsTrailShown(state, call) ? 1 : 0);

    Pushpin moved = map.AddPushpin(location, MarkerName(word, call));
    moved.SetBalloonState(balloon);
    moved.SetSymbol(SymbolId(symbolWord));
    if (main.map.Selection == MapSelection(pin))
        SelectOnMap(main, moved); // The station was picked, not the place that it left.
    if (main.tracking.bShowTrackLine)
        DrawTrackLine(main, state, call, from, moved.Location());
}

void RemoveStationTrack(MainWindow& main, Channel channel, std::string_view call)
{
    ChannelState& state = main.Of(channel);
    RemoveEntry(main, state.TrackMarkers, call);
    RemoveEntry(main, state.TrackLines, call);
}

void RemoveChannelTracks(MainWindow& main, Channel channel)
{
    ChannelState& state = main.Of(channel);
    RemoveEntries(main, state.TrackMarkers);
    RemoveEntries(main, state.TrackLines);
}

void RemoveAllTracks(MainWindow& main)
{
    for (const Channel channel : kChannels)
        RemoveChannelTracks(main, channel);
}

} // namespace ruvenmark
