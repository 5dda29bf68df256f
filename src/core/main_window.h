#pragma once

#include "core/channel_state.h"
#include "core/failure_counts.h"
#include "core/link_state.h"
#include "core/loaded_parts.h"
#include "core/services.h"
#include "core/settings.h"
#include "core/stored_settings.h"
#include "core/window_state.h"
#include "links/gps_form.h"
#include "links/gps_panel_state.h"
#include "links/gps_state.h"
#include "links/import_form.h"
#include "links/link_status.h"
#include "links/monitor_state.h"
#include "links/replay_state.h"
#include "links/server_form.h"
#include "links/server_status.h"
#include "links/tnc_form.h"
#include "links/weather_form.h"
#include "map/find_form.h"
#include "map/map_session.h"
#include "map/region_form.h"
#include "map/tile_form.h"
#include "messaging/message_form.h"
#include "messaging/message_state.h"
#include "messaging/open_message_form.h"
#include "options/options_form.h"
#include "outgoing/beacon_state.h"
#include "outgoing/object_form.h"
#include "outgoing/position_form.h"
#include "outgoing/status_form.h"
#include "outgoing/weather_report_form.h"
#include "platform/keyed_tree.h"
#include "platform/map_control.h"
#include "platform/status_bar.h"
#include "tracking/filter_form.h"
#include "tracking/track_list_form.h"
#include "tracking/track_state.h"

#include <array>
#include <utility>

namespace ruvenmark {

// All state of the program, made once in main() and lent by reference. Behaviour is in the folders' functions.
struct MainWindow {
    explicit MainWindow(Services lent) : services(std::move(lent)), mpCtrl(services.files) {}
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    Services services;
    StoredSettings stored{services.store, services.notices};
    LoadedParts loaded;
    SettingsState Settings;
    WindowState window;
    StatusBar sbStatusBar;
    KeyedTree tvStationList;
    MapControl mpCtrl; // Before all that holds handles of its map.
    MapSession map;
    std::array<ChannelState, 3> channels = {ChannelState(Channel::RF), ChannelState(Channel::TCP),
                                            ChannelState(Channel::FL)};
    TrackState tracking;
    TncForm commDialog;
    ServerForm frmTcp;
    ServerLists serverLists;
    ServerStatus serverStatus;
    LinkStatus radioStatus;
    GpsForm frmGps;
    GpsPanelState frmGpsPanel;
    WxForm frmWx;
    GpsState gps;
    MonitorState monitors;
    BeaconState beacons;
    PositionForm frmPosition;
    ObjectForm frmObject;
    WeatherReportForm frmWeather;
    StatusForm frmStatus;
    MessageState messages;
    MessageForm frmMessage;
    OpenMessageForm frmOpenMessage;
    RegionForm frmRegion;
    ImportForm frmImport;
    ReplayState replay;
    TileForm frmTiles;
    FilterForm frmFilter;
    TrackListForm frmTrackList;
    FindForm frmFind;
    OptionsForm frmOptions;
    FailureCounts abandoned;
    LinkState links; // Last: its sources fall silent first.

    ChannelState& Of(Channel channel) { return channels[Index(channel)]; }
    const ChannelState& Of(Channel channel) const { return channels[Index(channel)]; }
};

} // namespace ruvenmark
