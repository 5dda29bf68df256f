// The rules of the station tree's pop-up menus; see menu_rules.h.

#include "core/tree_selection.h"
#include "map/names_state.h"
#include "outgoing/my_station.h"
#include "tracking/track_lists.h"
#include "ui/menu_rules.h"

#include <algorithm>
#include <string>

namespace ruvenmark::menu_rules {

namespace {

// Null where the node is of no channel.
const ChannelState* ChannelAt(const MenuContext& at)
{
    const auto channel = at.node ? ChannelOf(*at.node) : std::nullopt;
    return channel ? &at.main.Of(*channel) : nullptr;
}

bool IsOnTrackList(const MenuContext& at)
{
    const ChannelState* channel = ChannelAt(at);
    return channel && IsTracked(*channel, at.node->Text());
}

void TickTrack(const MenuContext& at, MenuEntryState& state, bool bWanted)
{
    state.bEnabled = IsOnTrackList(at);
    if (!state.bEnabled)
        return;
    const bool* bShown = ChannelAt(at)->TrackVisible.Find(TrackKey(at.node->Text()));
    state.bChecked = (!bShown || *bShown) == bWanted;
}

bool AllNamesAre(const MainWindow& main, bool bShow)
{
    return std::all_of(kChannels.begin(), kChannels.end(),
                       [&](Channel channel) { return IsNamesState(main, channel, bShow); });
}

// A text shown as it is, with no mnemonic in it.
std::string Plain(std::string_view text)
{
    std::string plain;
    for (const char c : text)
        plain.append(c == '&' ? 2 : 1, c);
    return plain;
}

// Ahead of the last blank, or whole where there is none.
std::string FolderName(const TreeNode& root)
{
    const std::string_view text = root.Text();
    return Plain(text.substr(0, text.rfind(' ')));
}

// The word goes between the two texts; a root that is no channel has its own.
void NameNames(const MenuContext& at, MenuEntryState& state, bool bShow)
{
    const std::string verb = bShow ? "Show " : "Hide ";
    if (const ChannelState* channel = ChannelAt(at)) {
        state.caption = verb + std::string(at.node->Word()) + " Station Names";
        state.bChecked = IsNamesState(at.main, channel->channel, bShow);
    } else if (at.node) {
        state.caption = verb + FolderName(*at.node) + " Stations";
    }
}

bool IsSet(const MenuContext& at, Setting setting)
{
    return !SettingText(at.main.Settings, setting).empty();
}

} // namespace

// --- A station's node

void OnUntracked(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = ChannelAt(at) != nullptr && !IsOnTrackList(at);
}

void OnTracked(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = IsOnTrackList(at);
}

void TickTrackShown(const MenuContext& at, MenuEntryState& state)
{
    TickTrack(at, state, true);
}

void TickTrackHidden(const MenuContext& at, MenuEntryState& state)
{
    TickTrack(at, state, false);
}

void OnTrail(const MenuContext& at, MenuEntryState& state)
{
    const ChannelState* channel = ChannelAt(at);
    state.bEnabled =
        channel && (channel->TrackMarkers.Contains(at.node->Text()) || channel->TrackLines.Contains(at.node->Text()));
}

void OnRange(const MenuContext& at, MenuEntryState& state)
{
    const ChannelState* channel = ChannelAt(at);
    state.bEnabled = channel && channel->StationRanges.Contains(at.node->Text());
}

void OnCircle(const MenuContext& at, MenuEntryState& state)
{
    const ChannelState* channel = ChannelAt(at);
    state.bEnabled = channel && channel->RangeCircles.Contains(at.node->Text());
}

// --- A root, or nothing

void NamePopupConnect(const MenuContext& at, MenuEntryState& state)
{
    const ChannelState* channel = ChannelAt(at);
    const LinkState& links = at.main.links;
    if (channel && channel->channel == Channel::TCP)
        state.caption = links.bServerConnected ? "Disconnect APRS Server" : "Connect APRS Server...";
    else if (links.IsOnAir())
        state.caption = "Disconnect TNC";
}

void OnChannelFilter(const MenuContext& at, MenuEntryState& state)
{
    if (const ChannelState* channel = ChannelAt(at)) {
        state.caption = "Filter " + std::string(at.node->Word()) + " Reports";
        state.bChecked = channel->Filter.bOn;
    }
}

void NameFilterEditor(const MenuContext& at, MenuEntryState& state)
{
    if (ChannelAt(at))
        state.caption = "Edit " + std::string(at.node->Word()) + " Filter...";
}

void NameChannelReports(const MenuContext& at, MenuEntryState& state)
{
    if (ChannelAt(at))
        state.caption = "Delete " + std::string(at.node->Word()) + " Reports";
}

void TickAllNames(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = AllNamesAre(at.main, true);
}

void TickNoNames(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = AllNamesAre(at.main, false);
}

void OnAnyCircle(const MenuContext& at, MenuEntryState& state)
{
    const auto& channels = at.main.channels;
    state.bEnabled = std::any_of(channels.begin(), channels.end(),
                                 [](const ChannelState& channel) { return !channel.RangeCircles.IsEmpty(); });
}

void TickRootNames(const MenuContext& at, MenuEntryState& state)
{
    NameNames(at, state, true);
}

void TickNoRootNames(const MenuContext& at, MenuEntryState& state)
{
    NameNames(at, state, false);
}

void OnTreeLoading(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.links.FileLoading)
        state.caption = "Stop File Loading";
}

void NameUnload(const MenuContext& at, MenuEntryState& state)
{
    if (at.node)
        state.caption = "Unload " + (ChannelAt(at) ? std::string(at.node->Word()) : FolderName(*at.node));
}

// --- The own station

void NameMyEdit(const MenuContext& at, MenuEntryState& state)
{
    const std::string key = at.node ? at.node->Key() : std::string();
    if (key == kMyPosition)
        state.caption = "Position Settings...";
    else if (key == kMyWeather)
        state.caption = "Weather Settings...";
    else if (at.node && !at.node->Parent())
        state.caption = "Station Settings...";
}

void NameMySend(const MenuContext& at, MenuEntryState& state)
{
    const std::string key = at.node ? at.node->Key() : std::string();
    if (key == kMyPosition) {
        state.caption = "Send Position";
        state.bEnabled = IsPositionDefined(at.main) && at.main.links.IsAnyOpen();
    } else if (key == kMyWeather) {
        state.caption = "Send Weather";
        state.bEnabled = IsWeatherDefined(at.main) && at.main.links.IsAnyOpen();
    } else {
        state.bVisible = false;
    }
}

// --- The own station's facts

void OnMyPosition(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = IsSet(at, Setting::Lat) && IsSet(at, Setting::Lon);
}

void OnMyRange(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = at.main.map.MyRange > 0;
}

void OnMyCircle(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = at.main.map.MyRangeCircle.has_value();
}

// --- A folder

void OnSortable(const MenuContext& at, MenuEntryState& state)
{
    const ChannelState* channel = ChannelAt(at);
    state.bVisible = !channel || !Traits(channel->channel).bFoldersSorted;
}

void TickUnknown(const MenuContext& at, MenuEntryState& state)
{
    const ChannelState* channel = ChannelAt(at);
    state.bVisible = channel && at.node->Word() == kUnknown;
    state.bChecked = state.bVisible && channel->bShowUnknown;
}

} // namespace ruvenmark::menu_rules
