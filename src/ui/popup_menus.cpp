#include "core/main_window.h"
#include "platform/numbers.h"
#include "tracking/track_lists.h"
#include "ui/menu_places.h"
#include "ui/station_tree_commands.h"

#include <algorithm>
#include <array>
#include <string>

namespace ruvenmark {

namespace {

using E = MenuEntry;

// --- A station

const ChannelState* ChannelOfNode(const MenuContext& at)
{
    const TreeNode* root = at.node;
    while (root && root->Parent())
        root = root->Parent();
    const auto channel = root ? ChannelOfWord(root->Word()) : std::nullopt;
    return channel ? &at.main.Of(*channel) : nullptr;
}

bool IsOnTrackList(const MenuContext& at)
{
    const ChannelState* channel = ChannelOfNode(at);
    return channel && IsTracked(*channel, at.node->Text());
}

bool IsTrackShown(const MenuContext& at)
{
    const bool* bShown = ChannelOfNode(at)->TrackVisible.Find(TrackKey(at.node->Text()));
    return !bShown || *bShown;
}

void OnTracked(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = IsOnTrackList(at);
}

constexpr std::array kStation = {
    MenuPlace{E::mnuViewPosition},
    MenuPlace{E::mnuInfo},
    kLine,
    MenuPlace{E::mnuStartTrack, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  state.bEnabled = ChannelOfNode(at) != nullptr && !IsOnTrackList(at);
              }},
    MenuPlace{E::mnuStopTrack, Menu::None, OnTracked},
    MenuPlace{E::mnuShowStationTrack, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  OnTracked(at, state);
                  state.bChecked = state.bEnabled && IsTrackShown(at);
              }},
    MenuPlace{E::mnuHideStationTrack, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  OnTracked(at, state);
                  state.bChecked = state.bEnabled && !IsTrackShown(at);
              }},
    MenuPlace{E::mnuRemoveTrack, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const ChannelState* channel = ChannelOfNode(at);
                  const std::string& call = at.node->Text();
                  state.bEnabled =
                      channel && (channel->TrackMarkers.Contains(call) || channel->TrackLines.Contains(call));
              }},
    kLine,
    MenuPlace{E::mnuShowRange, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const ChannelState* channel = ChannelOfNode(at);
                  state.bEnabled = channel && channel->StationRanges.Contains(at.node->Text());
              }},
    MenuPlace{E::mnuHideRange, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const ChannelState* channel = ChannelOfNode(at);
                  state.bEnabled = channel && channel->RangeCircles.Contains(at.node->Text());
              }},
    kLine,
    MenuPlace{E::mnuRemoveStation}};

// --- A root, or nothing

bool IsNamesState(const MainWindow& main, Channel channel, bool bShow)
{
    const std::string_view setting = Traits(channel).namesSetting;
    if (setting.empty())
        return main.frmImport.bFLShow == bShow;
    return ReadNumber(SettingText(main.Settings, setting)) == (bShow ? 1.0 : 0.0);
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
void NamesCaption(const MenuContext& at, MenuEntryState& state, bool bShow)
{
    const std::string verb = bShow ? "Show " : "Hide ";
    const ChannelState* channel = ChannelOfNode(at);
    if (channel) {
        state.caption = verb + at.node->Word() + " Station Names";
        state.bChecked = IsNamesState(at.main, channel->channel, bShow);
    } else if (at.node) {
        state.caption = verb + FolderName(*at.node) + " Stations";
    }
}

constexpr std::array kRoot = {
    MenuPlace{E::mnuPopupToggleFilter, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  if (const ChannelState* channel = ChannelOfNode(at)) {
                      state.caption = "Filter " + at.node->Word() + " Reports";
                      state.bChecked = channel->Filter.bOn;
                  }
              },
              kChannelRoots},
    MenuPlace{E::mnuPopupEditFilter, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  if (ChannelOfNode(at))
                      state.caption = "Edit " + at.node->Word() + " Filter...";
              },
              kChannelRoots},
    MenuPlace{E::mnuClearReports, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  if (ChannelOfNode(at))
                      state.caption = "Delete " + at.node->Word() + " Reports";
              },
              kChannelRoots},
    MenuPlace{E::mnuClearAllReports, Menu::None, nullptr, kNoNode},
    MenuPlace{E::mnupop2bar0, Menu::None, nullptr, kNoNode | kChannelRoots},
    MenuPlace{E::mnuShowAll, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bChecked = AllNamesAre(at.main, true); },
              kNoNode},
    MenuPlace{E::mnuHideAll, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bChecked = AllNamesAre(at.main, false); },
              kNoNode},
    MenuPlace{E::mnuHideAllRangeCircles, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const auto& channels = at.main.channels;
                  state.bEnabled = std::any_of(channels.begin(), channels.end(),
                                               [](const auto& channel) { return !channel.RangeCircles.IsEmpty(); });
              }},
    kLine,
    MenuPlace{E::mnuShowTrack},
    kLine,
    MenuPlace{E::mnuShowFolderStations, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { NamesCaption(at, state, true); }, kAnyRoot},
    MenuPlace{E::mnuHideFolderStations, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { NamesCaption(at, state, false); }, kAnyRoot},
    MenuPlace{E::mnuLoadStations, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  if (at.main.FileLoading)
                      state.caption = "Stop File Loading";
              },
              kNoNode | kFlRoot},
    MenuPlace{E::mnuUnloadFolder, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  if (at.node && !ChannelOfNode(at))
                      state.caption = "Unload " + FolderName(*at.node);
              },
              kFlRoot | kLoadedRoot}};

// --- The own station's facts

bool IsSet(const MenuContext& at, std::string_view key)
{
    return !SettingText(at.main.Settings, key).empty();
}

constexpr std::array kMyRange = {
    MenuPlace{
        E::mnuViewMyPosition, Menu::None,
        [](const MenuContext& at, MenuEntryState& state) { state.bEnabled = IsSet(at, "Lat") && IsSet(at, "Lon"); }},
    MenuPlace{E::mnuShowMyRange, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bEnabled = at.main.map.MyRange > 0; }},
    MenuPlace{E::mnuHideMyRange, Menu::None, [](const MenuContext& at, MenuEntryState& state) {
                  state.bEnabled = at.main.map.MyRangeCircle.has_value();
              }}};

// --- A folder

constexpr std::array kFolder = {
    MenuPlace{E::mnuTcpSort, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const ChannelState* channel = ChannelOfNode(at);
                  state.bVisible = !channel || !Traits(channel->channel).bFoldersSorted;
              }},
    MenuPlace{E::mnuShowUnknown, Menu::None, [](const MenuContext& at, MenuEntryState& state) {
                  const ChannelState* channel = ChannelOfNode(at);
                  state.bVisible = channel && at.node->Word() == kUnknown;
                  state.bChecked = state.bVisible && channel->bShowUnknown;
              }}};

struct PopupInfo {
    Menu menu;
    std::span<const MenuPlace> places;
};
constexpr std::array kPopups = {
    PopupInfo{Menu::mnuStationPopup, kStation}, PopupInfo{Menu::mnuRootPopup, kRoot},
    PopupInfo{Menu::mnuMyStationPopup, {}},     PopupInfo{Menu::mnuMyRangePopup, kMyRange},
    PopupInfo{Menu::mnuTcpSortPopup, kFolder},
};

} // namespace

std::span<const MenuPlace> PopupPlaces(Menu menu)
{
    for (const PopupInfo& popup : kPopups)
        if (popup.menu == menu)
            return popup.places;
    return {};
}

} // namespace ruvenmark
