#include "lifecycle/start.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "intake/station_store.h"
#include "lifecycle/parts.h"
#include "links/gps_link.h"
#include "links/report_sinks.h"
#include "links/server_link.h"
#include "links/tnc_link.h"
#include "map/map_start.h"
#include "map/station_notes.h"
#include "outgoing/my_station.h"
#include "platform/program_name.h"

#include <memory>
#include <string>

namespace ruvenmark {

namespace {

// Ahead of all that can fail: a file can be loaded even where the start ended early.
void MakeSinks(MainWindow& main)
{
    main.mpCtrl.SetNoteMaker(std::make_unique<StationNotes>(main.channels));
    for (const Channel channel : kChannels)
        main.links.sinks[Index(channel)] = MakeReportSink(main, channel);
}

void BuildStationTree(MainWindow& main)
{
    AddMyStationTree(main.tvStationList);
    for (const Channel channel : kChannels)
        if (Traits(channel).bRootAtStart)
            AddChannelTree(main.tvStationList, channel);
    main.window.bStationTreeVisible = true;
}

// Without any dialog.
void AutoConnectLinks(MainWindow& main)
{
    if (main.commDialog.bAutoConnect)
        main.commDialog.bAutoSerialPort ? ConnectSerialTnc(main) : ConnectAgw(main);
    if (main.frmGps.bAutoGPS)
        ConnectGps(main);
    if (main.frmTcp.bAutoTCP)
        ConnectServerLink(main);
}

// What the first Failure skips the rest of.
void StartSubsystems(MainWindow& main, AutoConnect autoConnect)
{
    SetUpMap(main);
    main.window.bLeftPane = main.stored.Flag(Setting::ShowTreeView);
    BuildStationTree(main);
    LoadPart(main, Part::Follow);
    main.tracking.NewMarkerBalloon = 1;
    main.sbStatusBar.SetPanel(Panel::Tnc, "TNC not connected");
    LoadPart(main, Part::MessageBoxes);
    AddMyStationNode(main);
    for (const Part part : {Part::ServerLists, Part::Filters, Part::Comm, Part::Gps, Part::UnknownFolders,
                            Part::TrackLists, Part::FileLoad, Part::MapLook, Part::Tiles, Part::View})
        LoadPart(main, part);
    ShowOwnCall(main);
    SayHowToBegin(main);
    main.window.caption = kProgramName;
    main.window.Changed.Raise();
    if (autoConnect == AutoConnect::Yes)
        AutoConnectLinks(main);
}

} // namespace

void StartMainWindow(MainWindow& main, AutoConnect autoConnect)
{
    MakeSinks(main);
    bool bWell = Attempt(main.abandoned, "Start, geometry", [&] { LoadPart(main, Part::Geometry); });
    main.window.bShown = true;
    main.window.Changed.Raise();
    bWell &= Attempt(main.abandoned, "Start, map", [&] {
        LoadPart(main, Part::Region);
        main.mpCtrl.NewMap(main.map.Region);
    });
    bWell &= Attempt(main.abandoned, "Start, settings", [&] { LoadPart(main, Part::Settings); });
    bWell &= AttemptAloud(main, "The map for the start could not be opened", [&] { OpenDefaultMap(main); });
    bWell &= AttemptAloud(main, "The start ended early", [&] { StartSubsystems(main, autoConnect); });
    if (!bWell && !main.mpCtrl.ActiveMap()) {
        const bool bEurope = main.map.Region == kRegionEurope;
        main.services.prompts.Message(bEurope ? "Failed to initialize MapPoint Europe."
                                              : "Failed to initialize MapPoint North America.");
    }
}

} // namespace ruvenmark
