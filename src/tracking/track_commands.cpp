// The commands of track_lines.h: what the operator does with the selected station's trail, or with all.

#include "core/main_window.h"
#include "core/tree_selection.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "map/names_state.h"
#include "platform/text.h"
#include "tracking/track_lines.h"
#include "tracking/track_lists.h"

#include <optional>

namespace ruvenmark {

namespace {

struct TrackedSelection {
    std::string call; // The node's text.
    ChannelState& state;
};

std::optional<TrackedSelection> Selection(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    if (!station || !station->channel)
        return std::nullopt;
    return TrackedSelection{std::string(station->node->Text()), main.Of(*station->channel)};
}

// Also the station's markers on other channels, its track points, and those of any longer call.
void SetNamesContaining(MainWindow& main, std::string_view call, std::int32_t balloon)
{
    WalkMarkers(main, [&](Pushpin& pin) {
        if (ContainsIgnoringCase(pin.Name(), call))
            pin.SetBalloonState(balloon);
    });
}

void ShowTrailLine(const SettingsState& settings, Shape& line, bool bShow)
{
    line.SetVisible(bShow);
    line.SetBeginArrowhead(bShow && TrackBeginArrow(settings));
    line.SetEndArrowhead(bShow && TrackEndArrow(settings));
    line.SetWeight(bShow ? TrackLineWeight(settings) : 0);
}

// What the map has lost is counted and passed over.
void ShowTrail(MainWindow& main, ChannelState& state, std::string_view call, bool bShow)
{
    state.TrackVisible.Set(TrackKey(call), bShow);
    if (auto* points = state.TrackMarkers.Find(call))
        for (Pushpin& point : *points)
            Attempt(main.abandoned, "ShowTrail", [&] { point.SetBalloonState(bShow ? 1 : 0); });
    if (auto* lines = state.TrackLines.Find(call))
        for (Shape& line : *lines)
            Attempt(main.abandoned, "ShowTrail", [&] { ShowTrailLine(main.Settings, line, bShow); });
}

// Of exactly this call: trails are kept under calls as they were reported, in upper case or not.
bool HasTrack(const ChannelState& state, std::string_view call)
{
    return state.TrackMarkers.Contains(call) || state.TrackLines.Contains(call);
}

bool IsTrackedAnywhere(const MainWindow& main, std::string_view key)
{
    for (const ChannelState& state : main.channels)
        if (state.Tracked.Contains(key))
            return true;
    return false;
}

} // namespace

void mnuStartTrack_Click(MainWindow& main)
{
    const auto selection = Selection(main);
    if (!selection)
        return;
    const std::string key = TrackKey(selection->call);
    selection->state.Tracked.Add(key, key);
    Attempt(main.abandoned, "mnuStartTrack",
            [&] { SetNamesContaining(main, selection->call, main.tracking.NewMarkerBalloon); });
}

void mnuStopTrack_Click(MainWindow& main)
{
    const auto selection = Selection(main);
    if (!selection)
        return;
    selection->state.Tracked.Remove(TrackKey(selection->call));
    // The names of RF and TCP are hidden whatever their settings say; FL follows its own.
    const bool bShow = selection->state.channel == Channel::FL && main.frmImport.bFLShow;
    Attempt(main.abandoned, "mnuStopTrack", [&] { SetNamesContaining(main, selection->call, bShow ? 1 : 0); });
}

void mnuShowStationTrack_Click(MainWindow& main)
{
    if (const auto selection = Selection(main))
        Attempt(main.abandoned, "mnuShowStationTrack",
                [&] { ShowTrail(main, selection->state, selection->call, true); });
}

void mnuHideStationTrack_Click(MainWindow& main)
{
    if (const auto selection = Selection(main))
        Attempt(main.abandoned, "mnuHideStationTrack",
                [&] { ShowTrail(main, selection->state, selection->call, false); });
}

void mnuRemoveTrack_Click(MainWindow& main)
{
    const auto selection = Selection(main);
    if (!selection)
        return;
    const std::string key = TrackKey(selection->call);
    if (!main.services.prompts.AskToDelete("Are you sure you want to remove track for " + key + "?"))
        return;
    const ChannelState& state = selection->state;
    RemoveStationTrack(main, state.channel, HasTrack(state, key) ? key : selection->call);
}

void mnuShowTrack_Click(MainWindow& main)
{
    for (const Channel channel : kChannels)
        SetNamesState(main, channel, false);
    main.tracking.NewMarkerBalloon = 1;
    Attempt(main.abandoned, "mnuShowTrack", [&] {
        WalkMarkers(main, [&](Pushpin& pin) {
            pin.SetBalloonState(IsTrackedAnywhere(main, TrackKey(CallOfMarkerName(pin.Name()))) ? 1 : 0);
        });
    });
}

void mnuRemoveAllTracks_Click(MainWindow& main)
{
    if (main.services.prompts.AskToDelete("Are you sure you want to remove all station tracks?"))
        RemoveAllTracks(main);
}

void mnuToolsShowTrackLine_Click(MainWindow& main)
{
    main.tracking.bShowTrackLine = !main.tracking.bShowTrackLine;
}

void mnuToolsStationTracking_Click(MainWindow& main)
{
    main.tracking.bTrackStationPosition = !main.tracking.bTrackStationPosition;
}

} // namespace ruvenmark
