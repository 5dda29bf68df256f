#pragma once

#include "core/main_window.h"
#include "platform/map_style.h"
#include "ui/menus.h"

#include <cstdint>

// How each entry stands, by the state of the program; what a rule does not touch stays as designed. The rules of the
// station tree's entries read the node under the menu.
namespace ruvenmark::menu_rules {

void OnMap(const MenuContext& at, MenuEntryState& state);
void NameMapAtStart(const MenuContext& at, MenuEntryState& state);
void OnCut(const MenuContext& at, MenuEntryState& state);
void OnCopy(const MenuContext& at, MenuEntryState& state);
void OnDelete(const MenuContext& at, MenuEntryState& state);
void OnPlacedStations(const MenuContext& at, MenuEntryState& state);
void OnPaste(const MenuContext& at, MenuEntryState& state);
void OnDirectionsText(const MenuContext& at, MenuEntryState& state);
void OnLoading(const MenuContext& at, MenuEntryState& state);
void NameServer(const MenuContext& at, MenuEntryState& state);
void NameGps(const MenuContext& at, MenuEntryState& state);
void NameWx(const MenuContext& at, MenuEntryState& state);
void OnTracks(const MenuContext& at, MenuEntryState& state);
void TickTiles(const MenuContext& at, MenuEntryState& state);
void TickTileFile(const MenuContext& at, MenuEntryState& state);
void TickFollow(const MenuContext& at, MenuEntryState& state);
void TickGpsTracking(const MenuContext& at, MenuEntryState& state);
void TickTrackLine(const MenuContext& at, MenuEntryState& state);
void TickDirections(const MenuContext& at, MenuEntryState& state);

void NameConnectTnc(const MenuContext& at, MenuEntryState& state);

template <std::int32_t kFont>
void TickFont(const MenuContext& at, MenuEntryState& state)
{
    OnMap(at, state);
    state.bChecked = state.bEnabled && at.main.mpCtrl.ActiveMap()->MapFont() == kFont;
}

template <MapStyle kStyle>
void TickStyle(const MenuContext& at, MenuEntryState& state)
{
    OnMap(at, state);
    state.bChecked = state.bEnabled && at.main.mpCtrl.ActiveMap()->MapStyle() == NumberOf(kStyle);
}

template <std::int32_t kToolbar>
void TickToolbar(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.mpCtrl.ToolbarVisible(kToolbar);
}

template <std::int32_t kRegion>
void TickRegion(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.mpCtrl.MapRegion() == kRegion;
}

template <std::int16_t kMinutes>
void TickFade(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.map.iFadeAfter == kMinutes;
}

template <bool WindowState::*kFlag>
void TickWindow(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.window.*kFlag;
}

template <Form kForm>
void TickForm(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.services.dialogs.IsVisible(kForm);
}

// --- A station's node
void OnUntracked(const MenuContext& at, MenuEntryState& state);
void OnTracked(const MenuContext& at, MenuEntryState& state);
void TickTrackShown(const MenuContext& at, MenuEntryState& state);
void TickTrackHidden(const MenuContext& at, MenuEntryState& state);
void OnTrail(const MenuContext& at, MenuEntryState& state);
void OnRange(const MenuContext& at, MenuEntryState& state);
void OnCircle(const MenuContext& at, MenuEntryState& state);

// --- A root, or nothing
void NamePopupConnect(const MenuContext& at, MenuEntryState& state);
void OnChannelFilter(const MenuContext& at, MenuEntryState& state);
void NameFilterEditor(const MenuContext& at, MenuEntryState& state);
void NameChannelReports(const MenuContext& at, MenuEntryState& state);
void TickAllNames(const MenuContext& at, MenuEntryState& state);
void TickNoNames(const MenuContext& at, MenuEntryState& state);
void OnAnyCircle(const MenuContext& at, MenuEntryState& state);
void TickRootNames(const MenuContext& at, MenuEntryState& state);
void TickNoRootNames(const MenuContext& at, MenuEntryState& state);
void OnTreeLoading(const MenuContext& at, MenuEntryState& state);
void NameUnload(const MenuContext& at, MenuEntryState& state);

// --- The own station
void NameMyEdit(const MenuContext& at, MenuEntryState& state);
void NameMySend(const MenuContext& at, MenuEntryState& state);

// --- The own station's facts
void OnMyPosition(const MenuContext& at, MenuEntryState& state);
void OnMyRange(const MenuContext& at, MenuEntryState& state);
void OnMyCircle(const MenuContext& at, MenuEntryState& state);

// --- A folder
void OnSortable(const MenuContext& at, MenuEntryState& state);
void TickUnknown(const MenuContext& at, MenuEntryState& state);

// --- The list of messages that the right pane shows
void OnReceived(const MenuContext& at, MenuEntryState& state);
void OnSent(const MenuContext& at, MenuEntryState& state);
void OnSelectedMessage(const MenuContext& at, MenuEntryState& state);
void OnAnyMessage(const MenuContext& at, MenuEntryState& state);
void NameLocate(const MenuContext& at, MenuEntryState& state);

// --- A box
void NameClear(const MenuContext& at, MenuEntryState& state);

} // namespace ruvenmark::menu_rules
