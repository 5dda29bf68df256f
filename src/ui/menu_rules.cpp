#include "ui/menu_rules.h"

#include "core/tree_selection.h"
#include "map/edit_commands.h"
#include "map/selection.h"
#include "ui/first_steps.h"
#include "ui/tree_keys.h"

#include <algorithm>

namespace ruvenmark::menu_rules {

namespace {

bool HasTracks(const ChannelState& channel)
{
    return !channel.TrackMarkers.IsEmpty() || !channel.TrackLines.IsEmpty();
}

} // namespace

void OnMap(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = at.main.mpCtrl.ActiveMap() != nullptr;
}

// Without a file of its own the map can only take back what another one was given.
void NameMapAtStart(const MenuContext& at, MenuEntryState& state)
{
    const std::string& atStart = SettingText(at.main.Settings, Setting::DefaultMap);
    const std::string& file = at.main.map.sMainMapFile;
    state.bEnabled = !file.empty() || !atStart.empty();
    state.bChecked = !file.empty() && file == atStart;
    if (file.empty() && state.bEnabled)
        state.caption = "Start with an Emp&ty Map";
}

void OnCut(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = !IsTreeInFocus(at.main) && KindOfSelection(at.main) != SelectionKind::Nothing;
}

void OnCopy(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = IsTreeInFocus(at.main) || KindOfSelection(at.main) != SelectionKind::Nothing;
}

void OnDelete(const MenuContext& at, MenuEntryState& state)
{
    const auto station = SelectedStation(at.main.tvStationList);
    state.bEnabled =
        IsTreeInFocus(at.main) ? station && station->channel : KindOfSelection(at.main) != SelectionKind::Nothing;
}

void OnPlacedStations(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = at.main.mpCtrl.ActiveMap() && HasPlacedStations(at.main);
}

void OnPaste(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = CanPaste(at.main);
}

void OnDirectionsText(const MenuContext& at, MenuEntryState& state)
{
    const auto& ends = at.main.map.directions;
    state.bEnabled = ends[0].has_value() && ends[1].has_value();
}

void OnLoading(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.links.FileLoading)
        state.caption = "Stop File Loa&ding";
}

void NameConnectTnc(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.links.IsOnAir())
        state.caption = "Disconnect &TNC";
}

void NameServer(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.links.bServerConnected)
        state.caption = "Disconnect &APRS Server";
}

void NameGps(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.links.bGpsConnected)
        state.caption = "Disconnect &GPS";
}

void NameWx(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.links.bWxConnected)
        state.caption = "Disconnect W&x Station";
}

void OnTracks(const MenuContext& at, MenuEntryState& state)
{
    const auto& channels = at.main.channels;
    state.bEnabled = std::any_of(channels.begin(), channels.end(), HasTracks);
}

void TickTiles(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.map.tiles.bOnline;
}

void TickTileFile(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = !at.main.map.tiles.source.empty();
}

void TickFollow(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.tracking.bTrackStationPosition;
}

void TickGpsTracking(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.frmGps.bTrackGpsPosition;
}

void TickTrackLine(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.tracking.bShowTrackLine;
}

void TickDirections(const MenuContext& at, MenuEntryState& state)
{
    OnMap(at, state);
    state.bChecked = at.main.mpCtrl.ItineraryVisible();
}

} // namespace ruvenmark::menu_rules
