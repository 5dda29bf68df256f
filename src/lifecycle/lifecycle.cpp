#include "lifecycle/lifecycle.h"

#include "core/main_window.h"
#include "intake/station_store.h"
#include "links/import_form_rules.h"
#include "links/report_sinks.h"
#include "links/server_lists.h"
#include "map/documents.h"
#include "map/map_start.h"
#include "map/tile_settings.h"
#include "platform/numbers.h"
#include "platform/program_name.h"
#include "tracking/filters.h"
#include "tracking/track_lists.h"

#include <string>

namespace ruvenmark {

namespace {

void LoadGeometry(MainWindow& main)
{
    const ISettingsStore& store = main.services.store;
    WindowState& window = main.window;
    const auto stored = [&store](std::string_view key, std::int32_t first) {
        return ToInt32(store.Get(key, ShortText(std::int64_t{first})));
    };
    window.splitterLeft = stored("WindowSplit", kFirstSplitterLeft);
    window.bLeftPane = ToBool(store.Get("ShowTreeView", "True"));
    window.left = stored("MainLeft", kFirstLeft);
    window.top = stored("MainTop", kFirstTop);
    window.width = stored("MainWidth", kFirstWidth);
    window.height = stored("MainHeight", kFirstHeight);
    window.bGeometryLoaded = true;
}

void BuildStationTree(MainWindow& main)
{
    AddMyStationTree(main.tvStationList);
    for (const Channel channel : kChannels)
        if (Traits(channel).bRootAtStart)
            AddChannelTree(main.tvStationList, channel);
    main.window.bStationTreeVisible = true;
}

// Ahead of all that can fail: a file can be loaded even where the start ended early.
void MakeSinks(MainWindow& main)
{
    for (const Channel channel : kChannels)
        main.sinks[Index(channel)] = MakeReportSink(main, channel);
}

void LoadUnknownSettings(MainWindow& main)
{
    for (ChannelState& state : main.channels)
        state.bShowUnknown = ToBool(main.services.store.Get(Traits(state.channel).unknownSetting, "False"));
    main.tracking.bUnknownLoaded = true;
}

void SaveUnknownSettings(MainWindow& main)
{
    if (!main.tracking.bUnknownLoaded)
        return;
    for (const ChannelState& state : main.channels)
        main.services.store.Set(Traits(state.channel).unknownSetting, BoolText(state.bShowUnknown));
}

void ShowOwnCall(MainWindow& main)
{
    const std::string_view call = SettingText(main.Settings, "Call");
    main.sbStatusBar.SetPanel(Panel::Call, call.empty() ? "No Call Sign" : call);
}

// What the first Failure skips the rest of.
void StartSubsystems(MainWindow& main)
{
    SetUpMap(main);
    main.window.bLeftPane = ToBool(main.services.store.Get("ShowTreeView", "True"));
    BuildStationTree(main);
    main.tracking.bTrackStationPosition = ToBool(main.services.store.Get("TrackStationPosition", "True"));
    main.tracking.bFollowLoaded = true;
    main.tracking.NewMarkerBalloon = 1;
    main.sbStatusBar.SetPanel(Panel::Tnc, "TNC not connected");
    LoadServerLists(main);
    LoadFilters(main);
    LoadUnknownSettings(main);
    LoadTrackLists(main);
    LoadImportSettings(main);
    LoadTileSettings(main);
    ShowOwnCall(main);
    main.window.caption = kProgramName;
    main.window.Changed.Raise();
}

void SaveGeometry(MainWindow& main)
{
    const WindowState& window = main.window;
    if (!window.bGeometryLoaded)
        return;
    ISettingsStore& store = main.services.store;
    if (!window.bMinimised) {
        store.Set("MainLeft", ShortText(std::int64_t{window.left}));
        store.Set("MainTop", ShortText(std::int64_t{window.top}));
        store.Set("MainWidth", ShortText(std::int64_t{window.width}));
        store.Set("MainHeight", ShortText(std::int64_t{window.height}));
    }
    store.Set("ShowTreeView", BoolText(window.bLeftPane));
    store.Set("WindowSplit", ShortText(std::int64_t{window.splitterLeft}));
}

void ReleaseTracks(MainWindow& main)
{
    for (ChannelState& state : main.channels) {
        state.TrackMarkers.Clear();
        state.TrackLines.Clear();
        state.TrackVisible.Clear();
    }
}

void SaveMapChoices(MainWindow& main)
{
    ISettingsStore& store = main.services.store;
    if (main.map.bRegionKnown)
        store.Set("Region", ShortText(std::int64_t{main.map.Region}));
    if (main.tracking.bFollowLoaded)
        store.Set("TrackStationPosition", BoolText(main.tracking.bTrackStationPosition));
}

void SaveAll(MainWindow& main)
{
    SaveGeometry(main);
    ReleaseTracks(main);
    SaveMapChoices(main);
    SaveTrackLists(main);
    SaveFilters(main);
    SaveSettings(main.Settings, main.services.store);
    SaveServerLists(main);
    SaveUnknownSettings(main);
    SaveImportSettings(main);
    SaveTileSettings(main);
    main.Settings = {};
    main.serverLists = {};
}

} // namespace

void StartMainWindow(MainWindow& main)
{
    MakeSinks(main);
    bool bWell = Attempt(main.abandoned, "Start, geometry", [&] { LoadGeometry(main); });
    main.window.bShown = true;
    main.window.Changed.Raise();
    bWell &= Attempt(main.abandoned, "Start, map", [&] { StartMap(main); });
    bWell &= Attempt(main.abandoned, "Start, settings", [&] { LoadSettings(main.Settings, main.services.store); });
    bWell &= Attempt(main.abandoned, "Start, default map", [&] { OpenDefaultMap(main); });
    bWell &= Attempt(main.abandoned, "Start", [&] { StartSubsystems(main); });
    if (!bWell && !main.mpCtrl.ActiveMap()) {
        const bool bEurope = main.map.Region == kRegionEurope;
        main.services.prompts.Message(bEurope ? "Failed to initialize MapPoint Europe."
                                              : "Failed to initialize MapPoint North America.");
    }
}

bool StopMainWindow(MainWindow& main)
{
    main.FileLoading = false;
    main.aprsfl.reset();
    bool bGoesOn = true;
    Attempt(main.abandoned, "Stop", [&] {
        bGoesOn = AskToSaveMap(main);
        if (bGoesOn)
            SaveAll(main);
    });
    return bGoesOn;
}

} // namespace ruvenmark
