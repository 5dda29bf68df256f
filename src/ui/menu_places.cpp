#include "ui/menu_places.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

using E = MenuEntry;

constexpr MenuPlace kLine{};

// --- The menu bar

constexpr std::array kFile = {MenuPlace{E::mnuFileNew},        MenuPlace{E::mnuFileOpen},
                              MenuPlace{E::mnuFileSave},       MenuPlace{E::mnuFileSaveAs},
                              MenuPlace{E::mnuFileUseAtStart}, kLine,
                              MenuPlace{E::mnuImportStations}, kLine,
                              MenuPlace{E::mnuFilePrint},      kLine,
                              MenuPlace{E::mnuFileClose}};

constexpr std::array kEdit = {MenuPlace{E::mnuEditCut},
                              MenuPlace{E::mnuEditCopy},
                              MenuPlace{E::mnuEditPaste},
                              MenuPlace{E::mnuEditDelete},
                              kLine,
                              MenuPlace{E::mnuCopyMap},
                              MenuPlace{E::mnuCopyDirections},
                              kLine,
                              MenuPlace{E::mnuFind}};

constexpr std::array kView = {MenuPlace{E::mnuViewToolbar},
                              MenuPlace{E::mnuViewStatusBar},
                              MenuPlace{E::mnuTreeView},
                              kLine,
                              MenuPlace{E::mnuViewMap},
                              MenuPlace{E::mnuViewMessages},
                              MenuPlace{E::mnuViewStations},
                              MenuPlace{E::mnuViewGPSPanel},
                              kLine,
                              MenuPlace{E::None, Menu::MapStyle},
                              MenuPlace{E::None, Menu::MapFont},
                              MenuPlace{E::None, Menu::MapToolbars},
                              MenuPlace{E::None, Menu::Region},
                              MenuPlace{E::None, Menu::FadeAfter},
                              MenuPlace{E::mnuZoomToStations},
                              kLine,
                              MenuPlace{E::mnuViewTncData},
                              MenuPlace{E::mnuViewTcpData},
                              kLine,
                              MenuPlace{E::mnuOnlineTiles},
                              MenuPlace{E::mnuTileFile},
                              MenuPlace{E::mnuTileServer},
                              kLine,
                              MenuPlace{E::mnuViewFullScreen},
                              kLine,
                              MenuPlace{E::mnuViewOptions}};

constexpr std::array kMapFont = {MenuPlace{E::mnuFontLargest}, MenuPlace{E::mnuFontLarger}, MenuPlace{E::mnuFontMedium},
                                 MenuPlace{E::mnuFontSmaller}, MenuPlace{E::mnuFontSmallest}};

constexpr std::array kMapStyle = {MenuPlace{E::mnuRoadMap}, MenuPlace{E::mnuRoadDataMap}, MenuPlace{E::mnuDataMap},
                                  MenuPlace{E::mnuTerrainMap}, MenuPlace{E::mnuPoliticalMap}};

constexpr std::array kMapToolbars = {MenuPlace{E::mnuStandardToolbar}, MenuPlace{E::mnuNavigationToolbar},
                                     MenuPlace{E::mnuDrawingToolbar}, MenuPlace{E::mnuLocationScaleToolbar}};

constexpr std::array kRegionMenu = {MenuPlace{E::mnuRegionNorthAmerica}, MenuPlace{E::mnuRegionEurope}};

constexpr std::array kFadeAfter = {MenuPlace{E::mnuFadeOff},    MenuPlace{E::mnuFade30Minutes},
                                   MenuPlace{E::mnuFade1Hour},  MenuPlace{E::mnuFade2Hours},
                                   MenuPlace{E::mnuFade6Hours}, MenuPlace{E::mnuFade1Day}};

constexpr std::array kCommunication = {MenuPlace{E::mnuConnect}, MenuPlace{E::mnuConnectServer},
                                       MenuPlace{E::mnuConnectGps}, MenuPlace{E::mnuConnectWx}};
constexpr std::array kSend = {MenuPlace{E::mnuSendPosition}, MenuPlace{E::mnuSendWeather}, MenuPlace{E::mnuSendStatus},
                              MenuPlace{E::mnuSendObject}, MenuPlace{E::mnuSendMessage}};

constexpr std::array kTools = {MenuPlace{E::mnuToolsFilter},
                               MenuPlace{E::mnuTrackedStations},
                               kLine,
                               MenuPlace{E::mnuToolsStationTracking},
                               MenuPlace{E::mnuToolsGpsTracking},
                               MenuPlace{E::mnuToolsShowTrackLine},
                               MenuPlace{E::mnuRemoveAllTracks},
                               kLine,
                               MenuPlace{E::mnuDirections}};

constexpr std::array kHelp = {MenuPlace{E::mnuRuvenmarkHelp}, kLine, MenuPlace{E::mnuHelpAbout}};

// --- The station tree's pop-up menus: a station, a root or nothing, the own station's facts, a folder

constexpr std::array kStation = {MenuPlace{E::mnuViewPosition},
                                 MenuPlace{E::mnuPop1SendMsg},
                                 MenuPlace{E::mnuInfo},
                                 kLine,
                                 MenuPlace{E::mnuStartTrack},
                                 MenuPlace{E::mnuStopTrack},
                                 MenuPlace{E::mnuShowStationTrack},
                                 MenuPlace{E::mnuHideStationTrack},
                                 MenuPlace{E::mnuRemoveTrack},
                                 kLine,
                                 MenuPlace{E::mnuShowRange},
                                 MenuPlace{E::mnuHideRange},
                                 kLine,
                                 MenuPlace{E::mnuRemoveStation}};

constexpr std::array kRoot = {MenuPlace{E::mnuPopupConnect, Menu::None, kRfRoot | kTcpRoot},
                              MenuPlace{E::mnuPopupToggleFilter, Menu::None, kChannelRoots},
                              MenuPlace{E::mnuPopupEditFilter, Menu::None, kChannelRoots},
                              MenuPlace{E::mnuClearReports, Menu::None, kChannelRoots},
                              MenuPlace{E::mnuClearAllReports, Menu::None, kNoNode},
                              MenuPlace{E::mnupop2bar0, Menu::None, kNoNode | kChannelRoots},
                              MenuPlace{E::mnuShowAll, Menu::None, kNoNode},
                              MenuPlace{E::mnuHideAll, Menu::None, kNoNode},
                              MenuPlace{E::mnuHideAllRangeCircles},
                              kLine,
                              MenuPlace{E::mnuShowTrack},
                              kLine,
                              MenuPlace{E::mnuShowFolderStations, Menu::None, kAnyRoot},
                              MenuPlace{E::mnuHideFolderStations, Menu::None, kAnyRoot},
                              MenuPlace{E::mnuLoadStations, Menu::None, kNoNode | kFlRoot},
                              MenuPlace{E::mnuUnloadFolder, Menu::None, kFlRoot | kLoadedRoot}};

constexpr std::array kMyStation = {MenuPlace{E::mnuMyStationEdit}, MenuPlace{E::mnuMyStationSend}};

constexpr std::array kMyRange = {MenuPlace{E::mnuViewMyPosition}, MenuPlace{E::mnuShowMyRange},
                                 MenuPlace{E::mnuHideMyRange}};

constexpr std::array kFolder = {MenuPlace{E::mnuTcpSort}, MenuPlace{E::mnuShowUnknown}};

// --- The lists of messages, each with what goes with it, and the box tree

constexpr std::array kMessageList = {MenuPlace{E::mnuMsgOpen},
                                     MenuPlace{E::mnuMsgReply},
                                     MenuPlace{E::mnuMsgForward},
                                     MenuPlace{E::mnuMsgSendAgain},
                                     kLine,
                                     MenuPlace{E::mnuMsgDelete},
                                     MenuPlace{E::mnuMsgDeleteAll},
                                     kLine,
                                     MenuPlace{E::mnuMsgLocate},
                                     kLine,
                                     MenuPlace{E::mnuMsgNew}};

constexpr std::array kBoxTree = {MenuPlace{E::mnuMsgboxNewMsg}, MenuPlace{E::mnuMsgboxClear},
                                 MenuPlace{E::mnuMsgboxOptions}};

constexpr std::array kMenus = {
    MenuInfo{Menu::File, "&File", kFile},
    MenuInfo{Menu::Edit, "&Edit", kEdit},
    MenuInfo{Menu::View, "&View", kView},
    MenuInfo{Menu::Communication, "&Communication", kCommunication},
    MenuInfo{Menu::Send, "&Send", kSend},
    MenuInfo{Menu::Tools, "&Tools", kTools},
    MenuInfo{Menu::Help, "&Help", kHelp},
    MenuInfo{Menu::MapFont, "Map &Font", kMapFont},
    MenuInfo{Menu::MapStyle, "Map St&yle", kMapStyle},
    MenuInfo{Menu::MapToolbars, "Map Tool Ba&rs", kMapToolbars},
    MenuInfo{Menu::Region, "Re&gion", kRegionMenu},
    MenuInfo{Menu::FadeAfter, "Fa&de After", kFadeAfter},
    MenuInfo{Menu::mnuStationPopup, "", kStation},
    MenuInfo{Menu::mnuRootPopup, "", kRoot},
    MenuInfo{Menu::mnuMyStationPopup, "", kMyStation},
    MenuInfo{Menu::mnuMyRangePopup, "", kMyRange},
    MenuInfo{Menu::mnuTcpSortPopup, "", kFolder},
    MenuInfo{Menu::mnuMsgPopup, "", kMessageList},
    MenuInfo{Menu::mnuMsgBoxPopup, "", kBoxTree},
};

} // namespace

const MenuInfo* FindMenu(Menu menu)
{
    const auto* found = std::find_if(kMenus.begin(), kMenus.end(), [&](const auto& row) { return row.menu == menu; });
    return found == kMenus.end() ? nullptr : found;
}

} // namespace ruvenmark
