#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class TreeNode;
struct MainWindow;

// Every entry that works, by its own name.
enum class MenuEntry : std::uint8_t {
    None, // A line between entries.
    mnuFileNew,
    mnuFileOpen,
    mnuFileSave,
    mnuFileSaveAs,
    mnuFileUseAtStart,
    mnuImportStations,
    mnuFilePrint,
    mnuFileClose,
    mnuEditCut,
    mnuEditCopy,
    mnuEditPaste,
    mnuEditDelete,
    mnuCopyMap,
    mnuCopyDirections,
    mnuFind,
    mnuViewToolbar,
    mnuViewStatusBar,
    mnuTreeView,
    mnuViewMap,
    mnuViewMessages,
    mnuViewStations,
    mnuZoomToStations,
    mnuViewGPSPanel,
    mnuOnlineTiles,
    mnuTileFile,
    mnuTileServer,
    mnuViewTncData,
    mnuViewTcpData,
    mnuViewFullScreen,
    mnuViewOptions,
    mnuFontLargest,
    mnuFontLarger,
    mnuFontMedium,
    mnuFontSmaller,
    mnuFontSmallest,
    mnuRoadMap,
    mnuRoadDataMap,
    mnuDataMap,
    mnuTerrainMap,
    mnuPoliticalMap,
    mnuStandardToolbar,
    mnuNavigationToolbar,
    mnuDrawingToolbar,
    mnuLocationScaleToolbar,
    mnuRegionNorthAmerica,
    mnuRegionEurope,
    mnuFadeOff,
    mnuFade30Minutes,
    mnuFade1Hour,
    mnuFade2Hours,
    mnuFade6Hours,
    mnuFade1Day,
    mnuConnect,
    mnuConnectServer,
    mnuConnectGps,
    mnuConnectWx,
    mnuSendPosition,
    mnuSendWeather,
    mnuSendStatus,
    mnuSendObject,
    mnuSendMessage,
    mnuToolsFilter,
    mnuTrackedStations,
    mnuToolsStationTracking,
    mnuToolsGpsTracking,
    mnuToolsShowTrackLine,
    mnuRemoveAllTracks,
    mnuDirections,
    mnuRuvenmarkHelp,
    mnuHelpAbout,
    mnuViewPosition,
    mnuPop1SendMsg,
    mnuInfo,
    mnuStartTrack,
    mnuStopTrack,
    mnuShowStationTrack,
    mnuHideStationTrack,
    mnuRemoveTrack,
    mnuShowRange,
    mnuHideRange,
    mnuRemoveStation,
    mnuPopupConnect,
    mnuPopupToggleFilter,
    mnuPopupEditFilter,
    mnuClearReports,
    mnuClearAllReports,
    mnupop2bar0,
    mnuShowAll,
    mnuHideAll,
    mnuHideAllRangeCircles,
    mnuShowTrack,
    mnuShowFolderStations,
    mnuHideFolderStations,
    mnuLoadStations,
    mnuUnloadFolder,
    mnuMyStationEdit,
    mnuMyStationSend,
    mnuViewMyPosition,
    mnuShowMyRange,
    mnuHideMyRange,
    mnuTcpSort,
    mnuShowUnknown,
    mnuMsgOpen,
    mnuMsgReply,
    mnuMsgForward,
    mnuMsgSendAgain,
    mnuMsgDelete,
    mnuMsgDeleteAll,
    mnuMsgLocate,
    mnuMsgNew,
    mnuMsgboxNewMsg,
    mnuMsgboxClear,
    mnuMsgboxOptions
};

// The menus of the menu bar, those that open inside View, the station tree's five pop-up menus, and those of the lists
// of messages and of the box tree.
enum class Menu : std::uint8_t {
    None,
    File,
    Edit,
    View,
    Communication,
    Send,
    Tools,
    Help,
    MapFont,
    MapStyle,
    MapToolbars,
    Region,
    FadeAfter,
    mnuStationPopup,
    mnuRootPopup,
    mnuMyStationPopup,
    mnuMyRangePopup,
    mnuTcpSortPopup,
    mnuMsgPopup,
    mnuMsgBoxPopup
};

// In order; one without entries is left out.
std::span<const Menu> MenuBar();

struct MenuEntryState {
    std::string caption;
    bool bVisible = true;
    bool bEnabled = true;
    bool bChecked = false;
};

// What the state of an entry depends on: the program and, in a pop-up menu of the tree, the node under it.
struct MenuContext {
    const MainWindow& main;
    const TreeNode* node; // Of the station tree or the box tree; null for nothing, and everywhere else.
};

// What an entry is, wherever it stands.
struct MenuEntryInfo {
    MenuEntry entry;
    std::string_view name;     // "mnuFileNew"
    std::string_view caption;  // As designed; "&" stands before the mnemonic.
    std::string_view shortcut; // "Ctrl+N"; empty for none.
    bool bCheckable;
    void (*run)(MainWindow&);                                    // Null for lines.
    void (*rule)(const MenuContext&, MenuEntryState&) = nullptr; // None: always as designed.
};
const MenuEntryInfo& Info(MenuEntry entry);

// How the entry stands now: the one answer for menus, pop-up menus and tool bars.
MenuEntryState StateOf(MenuEntry entry, const MenuContext& at);

// One place in a menu: an entry, a menu that opens inside, or a line (neither of them).
struct MenuItem {
    MenuEntry entry = MenuEntry::None;
    Menu submenu = Menu::None;
    MenuEntryState state;
    bool IsLine() const
    {
        return submenu == Menu::None && (entry == MenuEntry::None || entry == MenuEntry::mnupop2bar0);
    }
};

// A menu as it stands at the moment it opens. The places and their order are always the same; only states differ. The
// node is what a pop-up menu of the tree is opened on: null for nothing, and for every other menu.
std::vector<MenuItem> MenuItems(const MainWindow& main, Menu menu, const TreeNode* node = nullptr);
std::string_view MenuTitle(Menu menu); // With its mnemonic; empty for a pop-up menu.

// Null where the entry is not among them.
const MenuEntryState* FindState(std::span<const MenuItem> items, MenuEntry entry);

// Runs the entry's command, on the tree's selected node where it needs one.
void RunMenuEntry(MainWindow& main, MenuEntry entry);

} // namespace ruvenmark
