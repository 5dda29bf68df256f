#include "links/gps_link.h"
#include "links/gps_panel.h"
#include "links/monitors.h"
#include "links/server_link.h"
#include "links/station_files.h"
#include "links/tnc_link.h"
#include "links/weather_link.h"
#include "map/documents.h"
#include "map/edit_commands.h"
#include "map/find.h"
#include "map/map_settings.h"
#include "map/markers.h"
#include "map/range_circles.h"
#include "map/tile_form_rules.h"
#include "map/tile_settings.h"
#include "messaging/box_commands.h"
#include "messaging/message_boxes.h"
#include "messaging/send_message.h"
#include "options/options_rules.h"
#include "outgoing/my_station.h"
#include "outgoing/object_report.h"
#include "outgoing/position_form_rules.h"
#include "outgoing/status_report.h"
#include "outgoing/weather_report.h"
#include "platform/map_style.h"
#include "tracking/filter_form_rules.h"
#include "tracking/track_lines.h"
#include "tracking/track_list_form_rules.h"
#include "ui/first_steps.h"
#include "ui/layout.h"
#include "ui/menu_rules.h"
#include "ui/station_tree_commands.h"
#include "ui/tree_keys.h"
#include "ui/view_settings.h"
#include "ui/web_page.h"

#include <array>
#include <cstddef>

namespace ruvenmark {

namespace {

template <std::int32_t kFont>
void RunFont(MainWindow& main)
{
    SetMapFont(main, kFont);
}

template <MapStyle kStyle>
void RunStyle(MainWindow& main)
{
    SetMapStyle(main, NumberOf(kStyle));
}

template <std::int32_t kToolbar>
void RunMapToolbar(MainWindow& main)
{
    ToggleMapToolbar(main, kToolbar);
}

template <std::int32_t kRegion>
void RunRegion(MainWindow& main)
{
    ChangeRegion(main, kRegion);
}

template <std::int16_t kMinutes>
void RunFade(MainWindow& main)
{
    SetFadeAfter(main, kMinutes);
}

void mnuHelpAbout_Click(MainWindow& main)
{
    main.services.dialogs.Run(Form::frmAbout, main);
}

using E = MenuEntry;
namespace rules = menu_rules;

// In the order of MenuEntry.
constexpr std::array kEntries = {
    MenuEntryInfo{E::None, "", "", "", false, nullptr},
    MenuEntryInfo{E::mnuFileNew, "mnuFileNew", "&New Map", "Ctrl+N", false, mnuFileNew_Click},
    MenuEntryInfo{E::mnuFileOpen, "mnuFileOpen", "&Open Map...", "Ctrl+O", false, mnuFileOpen_Click},
    MenuEntryInfo{E::mnuFileSave, "mnuFileSave", "&Save Map", "Ctrl+S", false, mnuFileSave_Click},
    MenuEntryInfo{E::mnuFileSaveAs, "mnuFileSaveAs", "Save Map &As...", "", false, mnuFileSaveAs_Click},
    MenuEntryInfo{E::mnuFileUseAtStart, "mnuFileUseAtStart", "&Use This Map at Start", "", true,
                  mnuFileUseAtStart_Click, rules::NameMapAtStart},
    MenuEntryInfo{E::mnuImportStations, "mnuImportStations", "Loa&d Stations...", "Ctrl+L", false,
                  mnuImportStations_Click, rules::OnLoading},
    MenuEntryInfo{E::mnuFilePrint, "mnuFilePrint", "&Print...", "Ctrl+P", false, mnuFilePrint_Click, rules::OnMap},
    MenuEntryInfo{E::mnuFileClose, "mnuFileClose", "&Close", "Ctrl+Q", false, mnuFileClose_Click},

    MenuEntryInfo{E::mnuEditCut, "mnuEditCut", "Cu&t", "Ctrl+X", false, mnuEditCut_Click, rules::OnCut},
    MenuEntryInfo{E::mnuEditCopy, "mnuEditCopy", "&Copy", "Ctrl+C", false, mnuEditCopy_Run, rules::OnCopy},
    MenuEntryInfo{E::mnuEditPaste, "mnuEditPaste", "&Paste", "Ctrl+V", false, mnuEditPaste_Click, rules::OnPaste},
    MenuEntryInfo{E::mnuEditDelete, "mnuEditDelete", "&Delete", "Del", false, mnuEditDelete_Run, rules::OnDelete},
    MenuEntryInfo{E::mnuCopyMap, "mnuCopyMap", "Copy &Map", "", false, mnuCopyMap_Click, rules::OnMap},
    MenuEntryInfo{E::mnuCopyDirections, "mnuCopyDirections", "Copy D&irections", "", false, mnuCopyDirections_Click,
                  rules::OnDirectionsText},
    MenuEntryInfo{E::mnuFind, "mnuFind", "&Find...", "Ctrl+F", false, mnuFind_Click, rules::OnMap},

    MenuEntryInfo{E::mnuViewToolbar, "mnuViewToolbar", "&Toolbar", "", true, mnuViewToolbar_Click,
                  rules::TickWindow<&WindowState::bToolBar>},
    MenuEntryInfo{E::mnuViewStatusBar, "mnuViewStatusBar", "Status &Bar", "", true, mnuViewStatusBar_Click,
                  rules::TickWindow<&WindowState::bStatusBar>},
    MenuEntryInfo{E::mnuTreeView, "mnuTreeView", "&Left Pane", "", true, mnuTreeView_Click,
                  rules::TickWindow<&WindowState::bLeftPane>},
    MenuEntryInfo{E::mnuViewMap, "mnuViewMap", "&Map", "", true, mnuViewMap_Click,
                  rules::TickWindow<&WindowState::bMapTicked>},
    MenuEntryInfo{E::mnuViewMessages, "mnuViewMessages", "Mess&ages", "", true, mnuViewMessages_Click,
                  rules::TickWindow<&WindowState::bMessagesTicked>},
    MenuEntryInfo{E::mnuViewStations, "mnuViewStations", "&Stations", "", true, mnuViewStations_Click,
                  rules::TickWindow<&WindowState::bStationList>},
    MenuEntryInfo{E::mnuZoomToStations, "mnuZoomToStations", "&Zoom to Stations", "", false, mnuZoomToStations_Click,
                  rules::OnPlacedStations},
    MenuEntryInfo{E::mnuViewGPSPanel, "mnuViewGPSPanel", "GPS &Panel", "", true, mnuViewGPSPanel_Click,
                  rules::TickForm<Form::frmGpsPanel>},
    MenuEntryInfo{E::mnuOnlineTiles, "mnuOnlineTiles", "&Online Tiles", "", true, mnuOnlineTiles_Click,
                  rules::TickTiles},
    MenuEntryInfo{E::mnuTileFile, "mnuTileFile", "T&ile File...", "", true, mnuTileFile_Click, rules::TickTileFile},
    MenuEntryInfo{E::mnuTileServer, "mnuTileServer", "Tile Ser&ver...", "", false, mnuTileServer_Click},
    MenuEntryInfo{E::mnuViewTncData, "mnuViewTncData", "T&NC Data", "", true, mnuViewTncData_Click,
                  rules::TickForm<Form::frmTnc>},
    MenuEntryInfo{E::mnuViewTcpData, "mnuViewTcpData", "T&CP Data", "", true, mnuViewTcpData_Click,
                  rules::TickForm<Form::frmTcpData>},
    MenuEntryInfo{E::mnuViewFullScreen, "mnuViewFullScreen", "F&ull Screen", "F11", true, mnuViewFullScreen_Click,
                  rules::TickWindow<&WindowState::bFullScreen>},
    MenuEntryInfo{E::mnuViewOptions, "mnuViewOptions", "S&ettings...", "Ctrl+,", false, mnuViewOptions_Click},

    MenuEntryInfo{E::mnuFontLargest, "mnuFontLargest", "&Largest", "", true, RunFont<0>, rules::TickFont<0>},
    MenuEntryInfo{E::mnuFontLarger, "mnuFontLarger", "L&arger", "", true, RunFont<1>, rules::TickFont<1>},
    MenuEntryInfo{E::mnuFontMedium, "mnuFontMedium", "&Medium", "", true, RunFont<2>, rules::TickFont<2>},
    MenuEntryInfo{E::mnuFontSmaller, "mnuFontSmaller", "&Smaller", "", true, RunFont<3>, rules::TickFont<3>},
    MenuEntryInfo{E::mnuFontSmallest, "mnuFontSmallest", "Smalles&t", "", true, RunFont<4>, rules::TickFont<4>},

    MenuEntryInfo{E::mnuRoadMap, "mnuRoadMap", "&Road Map", "", true, RunStyle<MapStyle::Road>,
                  rules::TickStyle<MapStyle::Road>},
    MenuEntryInfo{E::mnuRoadDataMap, "mnuRoadDataMap", "Road &and Data Map", "", true, RunStyle<MapStyle::RoadAndData>,
                  rules::TickStyle<MapStyle::RoadAndData>},
    MenuEntryInfo{E::mnuDataMap, "mnuDataMap", "&Data Map", "", true, RunStyle<MapStyle::Data>,
                  rules::TickStyle<MapStyle::Data>},
    MenuEntryInfo{E::mnuTerrainMap, "mnuTerrainMap", "&Terrain Map", "", true, RunStyle<MapStyle::Terrain>,
                  rules::TickStyle<MapStyle::Terrain>},
    MenuEntryInfo{E::mnuPoliticalMap, "mnuPoliticalMap", "&Political Map", "", true, RunStyle<MapStyle::Political>,
                  rules::TickStyle<MapStyle::Political>},

    MenuEntryInfo{E::mnuStandardToolbar, "mnuStandardToolbar", "&Standard", "", true, RunMapToolbar<1>,
                  rules::TickToolbar<1>},
    MenuEntryInfo{E::mnuNavigationToolbar, "mnuNavigationToolbar", "&Navigation", "", true, RunMapToolbar<2>,
                  rules::TickToolbar<2>},
    MenuEntryInfo{E::mnuDrawingToolbar, "mnuDrawingToolbar", "&Drawing", "", true, RunMapToolbar<3>,
                  rules::TickToolbar<3>},
    MenuEntryInfo{E::mnuLocationScaleToolbar, "mnuLocationScaleToolbar", "&Location and Scale", "", true,
                  RunMapToolbar<4>, rules::TickToolbar<4>},

    MenuEntryInfo{E::mnuRegionNorthAmerica, "mnuRegionNorthAmerica", "&North America", "", true,
                  RunRegion<kRegionNorthAmerica>, rules::TickRegion<kRegionNorthAmerica>},
    MenuEntryInfo{E::mnuRegionEurope, "mnuRegionEurope", "&Europe", "", true, RunRegion<kRegionEurope>,
                  rules::TickRegion<kRegionEurope>},

    MenuEntryInfo{E::mnuFadeOff, "mnuFadeOff", "&Off", "", true, RunFade<0>, rules::TickFade<0>},
    MenuEntryInfo{E::mnuFade30Minutes, "mnuFade30Minutes", "&30 Minutes", "", true, RunFade<30>, rules::TickFade<30>},
    MenuEntryInfo{E::mnuFade1Hour, "mnuFade1Hour", "&1 Hour", "", true, RunFade<60>, rules::TickFade<60>},
    MenuEntryInfo{E::mnuFade2Hours, "mnuFade2Hours", "&2 Hours", "", true, RunFade<120>, rules::TickFade<120>},
    MenuEntryInfo{E::mnuFade6Hours, "mnuFade6Hours", "&6 Hours", "", true, RunFade<360>, rules::TickFade<360>},
    MenuEntryInfo{E::mnuFade1Day, "mnuFade1Day", "1 &Day", "", true, RunFade<1440>, rules::TickFade<1440>},

    MenuEntryInfo{E::mnuConnect, "mnuConnect", "Connect &TNC...", "", false, ConnectTnc, rules::NameConnectTnc},
    MenuEntryInfo{E::mnuConnectServer, "mnuConnectServer", "Connect &APRS Server...", "", false, mnuConnectServer_Click,
                  rules::NameServer},
    MenuEntryInfo{E::mnuConnectGps, "mnuConnectGps", "Connect &GPS...", "", false, mnuConnectGps_Click, rules::NameGps},
    MenuEntryInfo{E::mnuConnectWx, "mnuConnectWx", "Connect W&x Station...", "", false, mnuConnectWx_Click,
                  rules::NameWx},
    MenuEntryInfo{E::mnuSendPosition, "mnuSendPosition", "&Position...", "", false, mnuSendPosition_Click},
    MenuEntryInfo{E::mnuSendWeather, "mnuSendWeather", "&Weather...", "", false, mnuSendWeather_Click},
    MenuEntryInfo{E::mnuSendStatus, "mnuSendStatus", "&Status...", "", false, mnuSendStatus_Click},
    MenuEntryInfo{E::mnuSendObject, "mnuSendObject", "&Object...", "", false, mnuSendObject_Click},
    MenuEntryInfo{E::mnuSendMessage, "mnuSendMessage", "&Message...", "", false, mnuSendMessage_Click},

    MenuEntryInfo{E::mnuToolsFilter, "mnuToolsFilter", "&Filters...", "", false, mnuToolsFilter_Click},
    MenuEntryInfo{E::mnuTrackedStations, "mnuTrackedStations", "&Track List...", "", false, mnuTrackedStations_Click},
    MenuEntryInfo{E::mnuToolsStationTracking, "mnuToolsStationTracking", "&Shift Map to Tracked Stations", "", true,
                  mnuToolsStationTracking_Click, rules::TickFollow},
    MenuEntryInfo{E::mnuToolsGpsTracking, "mnuToolsGpsTracking", "Shift Map to &GPS Position", "", true,
                  mnuToolsGpsTracking_Click, rules::TickGpsTracking},
    MenuEntryInfo{E::mnuToolsShowTrackLine, "mnuToolsShowTrackLine", "Show Track &Lines", "", true,
                  mnuToolsShowTrackLine_Click, rules::TickTrackLine},
    MenuEntryInfo{E::mnuRemoveAllTracks, "mnuRemoveAllTracks", "&Remove All Tracks", "", false,
                  mnuRemoveAllTracks_Click, rules::OnTracks},
    MenuEntryInfo{E::mnuDirections, "mnuDirections", "&Directions", "", true, mnuDirections_Click,
                  rules::TickDirections},
    MenuEntryInfo{E::mnuRuvenmarkHelp, "mnuRuvenmarkHelp", "&Ruvenmark Help", "F1", false, mnuRuvenmarkHelp_Click},
    MenuEntryInfo{E::mnuHelpAbout, "mnuHelpAbout", "&About Ruvenmark", "", false, mnuHelpAbout_Click},

    MenuEntryInfo{E::mnuViewPosition, "mnuViewPosition", "View Position", "", false, mnuViewPosition_Click},
    MenuEntryInfo{E::mnuPop1SendMsg, "mnuPop1SendMsg", "Send Message...", "", false, mnuPop1SendMsg_Click},
    MenuEntryInfo{E::mnuInfo, "mnuInfo", "Operator Info", "", false, mnuInfo_Click},
    MenuEntryInfo{E::mnuStartTrack, "mnuStartTrack", "Start Tracking", "", false, mnuStartTrack_Click,
                  rules::OnUntracked},
    MenuEntryInfo{E::mnuStopTrack, "mnuStopTrack", "Stop Tracking", "", false, mnuStopTrack_Click, rules::OnTracked},
    MenuEntryInfo{E::mnuShowStationTrack, "mnuShowStationTrack", "Show Track", "", true, mnuShowStationTrack_Click,
                  rules::TickTrackShown},
    MenuEntryInfo{E::mnuHideStationTrack, "mnuHideStationTrack", "Hide Track", "", true, mnuHideStationTrack_Click,
                  rules::TickTrackHidden},
    MenuEntryInfo{E::mnuRemoveTrack, "mnuRemoveTrack", "Remove Track", "", false, mnuRemoveTrack_Click, rules::OnTrail},
    MenuEntryInfo{E::mnuShowRange, "mnuShowRange", "Show Signal Range", "", false, mnuShowRange_Click, rules::OnRange},
    MenuEntryInfo{E::mnuHideRange, "mnuHideRange", "Hide Signal Range", "", false, mnuHideRange_Click, rules::OnCircle},
    MenuEntryInfo{E::mnuRemoveStation, "mnuRemoveStation", "Delete Report", "", false, mnuRemoveStation_Click},

    MenuEntryInfo{E::mnuPopupConnect, "mnuPopupConnect", "Connect TNC...", "", false, mnuPopupConnect_Click,
                  rules::NamePopupConnect},
    MenuEntryInfo{E::mnuPopupToggleFilter, "mnuPopupToggleFilter", "Filter Reports", "", true,
                  mnuPopupToggleFilter_Click, rules::OnChannelFilter},
    MenuEntryInfo{E::mnuPopupEditFilter, "mnuPopupEditFilter", "Edit Filter", "", false, mnuPopupEditFilter_Click,
                  rules::NameFilterEditor},
    MenuEntryInfo{E::mnuClearReports, "mnuClearReports", "Delete Reports", "", false, mnuClearReports_Click,
                  rules::NameChannelReports},
    MenuEntryInfo{E::mnuClearAllReports, "mnuClearAllReports", "Delete all Reports", "", false,
                  mnuClearAllReports_Click},
    MenuEntryInfo{E::mnupop2bar0, "mnupop2bar0", "", "", false, nullptr},
    MenuEntryInfo{E::mnuShowAll, "mnuShowAll", "Show All Station Names", "", true, mnuShowAll_Click,
                  rules::TickAllNames},
    MenuEntryInfo{E::mnuHideAll, "mnuHideAll", "Hide All Station Names", "", true, mnuHideAll_Click,
                  rules::TickNoNames},
    MenuEntryInfo{E::mnuHideAllRangeCircles, "mnuHideAllRangeCircles", "Hide All Range Circles", "", false,
                  mnuHideAllRangeCircles_Click, rules::OnAnyCircle},
    MenuEntryInfo{E::mnuShowTrack, "mnuShowTrack", "Show Tracked Stations Only", "", false, mnuShowTrack_Click},
    MenuEntryInfo{E::mnuShowFolderStations, "mnuShowFolderStations", "Show Current Stations", "", true,
                  mnuShowFolderStations_Click, rules::TickRootNames},
    MenuEntryInfo{E::mnuHideFolderStations, "mnuHideFolderStations", "Hide Current Stations", "", true,
                  mnuHideFolderStations_Click, rules::TickNoRootNames},
    MenuEntryInfo{E::mnuLoadStations, "mnuLoadStations", "Load Stations...", "", false, mnuLoadStations_Click,
                  rules::OnTreeLoading},
    MenuEntryInfo{E::mnuUnloadFolder, "mnuUnloadFolder", "Unload", "", false, mnuUnloadFolder_Click, rules::NameUnload},

    MenuEntryInfo{E::mnuMyStationEdit, "mnuMyStationEdit", "Settings...", "", false, mnuMyStationEdit_Click,
                  rules::NameMyEdit},
    MenuEntryInfo{E::mnuMyStationSend, "mnuMyStationSend", "Send Report", "", false, mnuMyStationSend_Click,
                  rules::NameMySend},

    MenuEntryInfo{E::mnuViewMyPosition, "mnuViewMyPosition", "View Position", "", false, mnuViewMyPosition_Click,
                  rules::OnMyPosition},
    MenuEntryInfo{E::mnuShowMyRange, "mnuShowMyRange", "Show Signal Range", "", false, mnuShowMyRange_Click,
                  rules::OnMyRange},
    MenuEntryInfo{E::mnuHideMyRange, "mnuHideMyRange", "Hide Signal Range", "", false, mnuHideMyRange_Click,
                  rules::OnMyCircle},

    MenuEntryInfo{E::mnuTcpSort, "mnuTcpSort", "Sort in Alphabetic Order", "", false, mnuTcpSort_Click,
                  rules::OnSortable},
    MenuEntryInfo{E::mnuShowUnknown, "mnuShowUnknown", "Catch Rejected Packets", "", true, mnuShowUnknown_Click,
                  rules::TickUnknown},

    MenuEntryInfo{E::mnuMsgOpen, "mnuMsgOpen", "Open", "", false, mnuMsgOpen_Click, rules::OnReceived},
    MenuEntryInfo{E::mnuMsgReply, "mnuMsgReply", "Reply...", "", false, mnuMsgReply_Click, rules::OnReceived},
    MenuEntryInfo{E::mnuMsgForward, "mnuMsgForward", "Forward...", "", false, mnuMsgForward_Click, rules::OnReceived},
    MenuEntryInfo{E::mnuMsgSendAgain, "mnuMsgSendAgain", "Send Again", "", false, mnuMsgSendAgain_Click, rules::OnSent},
    MenuEntryInfo{E::mnuMsgDelete, "mnuMsgDelete", "Delete", "", false, mnuMsgDelete_Click, rules::OnSelectedMessage},
    MenuEntryInfo{E::mnuMsgDeleteAll, "mnuMsgDeleteAll", "Delete All", "", false, mnuMsgDeleteAll_Click,
                  rules::OnAnyMessage},
    MenuEntryInfo{E::mnuMsgLocate, "mnuMsgLocate", "Locate Sender", "", false, mnuMsgLocate_Click, rules::NameLocate},
    MenuEntryInfo{E::mnuMsgNew, "mnuMsgNew", "New Message...", "", false, mnuSendMessage_Click},

    MenuEntryInfo{E::mnuMsgboxNewMsg, "mnuMsgboxNewMsg", "New Message...", "", false, mnuSendMessage_Click},
    MenuEntryInfo{E::mnuMsgboxClear, "mnuMsgboxClear", "Clear Inbox", "", false, mnuMsgDeleteAll_Click,
                  rules::NameClear},
    MenuEntryInfo{E::mnuMsgboxOptions, "mnuMsgboxOptions", "Settings...", "", false, mnuMsgboxOptions_Click},
};

constexpr bool StandInOrder()
{
    for (std::size_t i = 0; i < kEntries.size(); ++i)
        if (static_cast<std::size_t>(kEntries[i].entry) != i)
            return false;
    return true;
}
static_assert(StandInOrder());
static_assert(kEntries.size() == static_cast<std::size_t>(E::mnuMsgboxOptions) + 1);

} // namespace

const MenuEntryInfo& Info(MenuEntry entry)
{
    return kEntries[static_cast<std::size_t>(entry)];
}

void RunMenuEntry(MainWindow& main, MenuEntry entry)
{
    main.sbStatusBar.SetNotice({}); // What the former one left to tell.
    if (const auto run = Info(entry).run)
        run(main);
}

} // namespace ruvenmark
