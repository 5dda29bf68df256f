#include "ui/menus.h"

#include "core/main_window.h"
#include "map/edit_commands.h"
#include "map/selection.h"
#include "ui/menu_places.h"
#include "ui/station_tree_commands.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

using E = MenuEntry;

void OnMap(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = at.main.mpCtrl.ActiveMap() != nullptr;
}

void OnSelection(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = KindOfSelection(at.main) != SelectionKind::Nothing;
}

template <std::int32_t kFont>
void TickFont(const MenuContext& at, MenuEntryState& state)
{
    OnMap(at, state);
    state.bChecked = state.bEnabled && at.main.mpCtrl.ActiveMap()->MapFont() == kFont;
}

template <std::int32_t kStyle>
void TickStyle(const MenuContext& at, MenuEntryState& state)
{
    OnMap(at, state);
    state.bChecked = state.bEnabled && at.main.mpCtrl.ActiveMap()->MapStyle() == kStyle;
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

template <bool WindowState::*kFlag>
void TickWindow(const MenuContext& at, MenuEntryState& state)
{
    state.bChecked = at.main.window.*kFlag;
}

void OnLoading(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.FileLoading)
        state.caption = "Stop File Loa&ding";
}

bool HasTracks(const ChannelState& channel)
{
    return !channel.TrackMarkers.IsEmpty() || !channel.TrackLines.IsEmpty();
}

constexpr std::array kFile = {MenuPlace{E::mnuFileNew},
                              MenuPlace{E::mnuFileOpen},
                              MenuPlace{E::mnuFileSave},
                              MenuPlace{E::mnuFileSaveAs},
                              kLine,
                              MenuPlace{E::mnuImportStations, Menu::None, OnLoading},
                              kLine,
                              MenuPlace{E::mnuFilePrint, Menu::None, OnMap},
                              kLine,
                              MenuPlace{E::mnuFileClose}};

constexpr std::array kEdit = {
    MenuPlace{E::mnuEditCut, Menu::None, OnSelection},
    MenuPlace{E::mnuEditCopy, Menu::None, OnSelection},
    MenuPlace{E::mnuEditPaste, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bEnabled = CanPaste(at.main); }},
    MenuPlace{E::mnuEditDelete, Menu::None, OnSelection},
    kLine,
    MenuPlace{E::mnuCopyMap, Menu::None, OnMap},
    MenuPlace{E::mnuCopyDirections, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const auto& ends = at.main.map.directions;
                  state.bEnabled = ends[0].has_value() && ends[1].has_value();
              }},
    kLine,
    MenuPlace{E::mnuFind, Menu::None, OnMap}};

constexpr std::array kView = {
    MenuPlace{E::mnuViewToolbar, Menu::None, TickWindow<&WindowState::bToolBar>},
    MenuPlace{E::mnuViewStatusBar, Menu::None, TickWindow<&WindowState::bStatusBar>},
    MenuPlace{E::mnuTreeView, Menu::None, TickWindow<&WindowState::bLeftPane>},
    kLine,
    MenuPlace{E::mnuViewMap, Menu::None, TickWindow<&WindowState::bMapTicked>},
    kLine,
    MenuPlace{E::None, Menu::MapStyle},
    MenuPlace{E::None, Menu::MapFont},
    MenuPlace{E::None, Menu::MapToolbars},
    MenuPlace{E::None, Menu::Region},
    kLine,
    MenuPlace{E::mnuOnlineTiles, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bChecked = at.main.map.tiles.bOnline; }},
    MenuPlace{E::mnuTileFile, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bChecked = !at.main.map.tiles.source.empty(); }},
    kLine,
    MenuPlace{E::mnuViewFullScreen, Menu::None, TickWindow<&WindowState::bFullScreen>}};

constexpr std::array kMapFont = {
    MenuPlace{E::mnuFontLargest, Menu::None, TickFont<0>}, MenuPlace{E::mnuFontLarger, Menu::None, TickFont<1>},
    MenuPlace{E::mnuFontMedium, Menu::None, TickFont<2>}, MenuPlace{E::mnuFontSmaller, Menu::None, TickFont<3>},
    MenuPlace{E::mnuFontSmallest, Menu::None, TickFont<4>}};
constexpr std::array kMapStyle = {
    MenuPlace{E::mnuRoadMap, Menu::None, TickStyle<0>}, MenuPlace{E::mnuRoadDataMap, Menu::None, TickStyle<1>},
    MenuPlace{E::mnuDataMap, Menu::None, TickStyle<2>}, MenuPlace{E::mnuTerrainMap, Menu::None, TickStyle<3>},
    MenuPlace{E::mnuPoliticalMap, Menu::None, TickStyle<4>}};
constexpr std::array kMapToolbars = {MenuPlace{E::mnuStandardToolbar, Menu::None, TickToolbar<1>},
                                     MenuPlace{E::mnuNavigationToolbar, Menu::None, TickToolbar<2>},
                                     MenuPlace{E::mnuDrawingToolbar, Menu::None, TickToolbar<3>},
                                     MenuPlace{E::mnuLocationScaleToolbar, Menu::None, TickToolbar<4>}};
constexpr std::array kRegionMenu = {MenuPlace{E::mnuRegionNorthAmerica, Menu::None, TickRegion<kRegionNorthAmerica>},
                                    MenuPlace{E::mnuRegionEurope, Menu::None, TickRegion<kRegionEurope>}};

constexpr std::array kTools = {
    MenuPlace{E::mnuToolsFilter},
    MenuPlace{E::mnuTrackedStations},
    kLine,
    MenuPlace{
        E::mnuToolsStationTracking, Menu::None,
        [](const MenuContext& at, MenuEntryState& state) { state.bChecked = at.main.tracking.bTrackStationPosition; }},
    MenuPlace{E::mnuToolsShowTrackLine, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) { state.bChecked = at.main.tracking.bShowTrackLine; }},
    MenuPlace{E::mnuRemoveAllTracks, Menu::None,
              [](const MenuContext& at, MenuEntryState& state) {
                  const auto& channels = at.main.channels;
                  state.bEnabled = std::any_of(channels.begin(), channels.end(), HasTracks);
              }},
    kLine,
    MenuPlace{E::mnuDirections, Menu::None, [](const MenuContext& at, MenuEntryState& state) {
                  OnMap(at, state);
                  state.bChecked = at.main.mpCtrl.ItineraryVisible();
              }}};

constexpr std::array kHelp = {MenuPlace{E::mnuRuvenmarkHelp}, kLine, MenuPlace{E::mnuHelpAbout}};

struct MenuInfo {
    Menu menu;
    std::string_view title;
    std::span<const MenuPlace> places;
};
constexpr std::array kMenus = {
    MenuInfo{Menu::File, "&File", kFile},
    MenuInfo{Menu::Edit, "&Edit", kEdit},
    MenuInfo{Menu::View, "&View", kView},
    MenuInfo{Menu::Tools, "&Tools", kTools},
    MenuInfo{Menu::Help, "&Help", kHelp},
    MenuInfo{Menu::MapFont, "Map &Font", kMapFont},
    MenuInfo{Menu::MapStyle, "Map &Style", kMapStyle},
    MenuInfo{Menu::MapToolbars, "Map Tool Ba&rs", kMapToolbars},
    MenuInfo{Menu::Region, "Re&gion", kRegionMenu},
};
constexpr std::array kMenuBar = {Menu::File, Menu::Edit, Menu::View, Menu::Tools, Menu::Help};

const MenuInfo* FindMenu(Menu menu)
{
    const auto* found = std::find_if(kMenus.begin(), kMenus.end(), [&](const auto& row) { return row.menu == menu; });
    return found == kMenus.end() ? nullptr : found;
}

unsigned FormOf(const TreeNode* node)
{
    switch (KindOf(node)) {
    case NodeKind::None:
        return kNoNode;
    case NodeKind::LoadedRoot:
        return kLoadedRoot;
    case NodeKind::ChannelRoot:
        return kRfRoot << static_cast<unsigned>(*ChannelOfWord(node->Word()));
    default:
        return kOther;
    }
}

constexpr std::array kToolButtons = {ToolButton{"New", "New map", E::mnuFileNew},
                                     ToolButton{"Open", "Open map", E::mnuFileOpen},
                                     ToolButton{"Save", "Save map", E::mnuFileSave},
                                     ToolButton{"Print", "Print map", E::mnuFilePrint},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"Cut", "Cut", E::mnuEditCut},
                                     ToolButton{"Copy", "Copy", E::mnuEditCopy},
                                     ToolButton{"Paste", "Paste", E::mnuEditPaste},
                                     ToolButton{"Delete", "Delete", E::mnuEditDelete},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"ViewLeft", "Left pane", E::mnuTreeView},
                                     ToolButton{"ViewMap", "Map", E::mnuViewMap},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"Help", "Help", E::mnuRuvenmarkHelp}};

const MenuPlace* FindPlace(MenuEntry entry)
{
    for (const MenuInfo& menu : kMenus) {
        for (const MenuPlace& place : menu.places)
            if (place.entry == entry)
                return &place;
    }
    return nullptr;
}

} // namespace

std::span<const Menu> MenuBar()
{
    return kMenuBar;
}

std::string_view MenuTitle(Menu menu)
{
    const MenuInfo* info = FindMenu(menu);
    return info ? info->title : std::string_view();
}

std::vector<MenuItem> MenuItems(const MainWindow& main, Menu menu, const TreeNode* node)
{
    const MenuInfo* info = FindMenu(menu);
    const auto places = info ? info->places : PopupPlaces(menu);
    const unsigned form = FormOf(node);
    std::vector<MenuItem> items;
    items.reserve(places.size());
    for (const MenuPlace& place : places) {
        MenuItem item{place.entry, place.submenu, {}};
        item.state.caption = place.submenu == Menu::None ? Info(place.entry).caption : MenuTitle(place.submenu);
        item.state.bVisible = (place.forms & form) != 0;
        if (place.rule)
            place.rule({main, node}, item.state);
        items.push_back(std::move(item));
    }
    return items;
}

const MenuEntryState* FindState(std::span<const MenuItem> items, MenuEntry entry)
{
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.entry == entry; });
    return found == items.end() ? nullptr : &found->state;
}

std::span<const ToolButton> ToolBar()
{
    return kToolButtons;
}

void tbToolBar_ButtonClick(MainWindow& main, std::string_view key)
{
    for (const ToolButton& button : kToolButtons)
        if (!key.empty() && button.key == key)
            RunMenuEntry(main, button.entry);
}

MenuEntryState ToolButtonState(const MainWindow& main, const ToolButton& button)
{
    MenuEntryState state;
    const MenuPlace* place = FindPlace(button.entry);
    if (place && place->rule)
        place->rule({main, nullptr}, state);
    state.caption.clear();
    return state;
}

} // namespace ruvenmark
