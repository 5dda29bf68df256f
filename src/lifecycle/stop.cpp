#include "lifecycle/stop.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "lifecycle/parts.h"
#include "links/gps_link.h"
#include "links/monitors.h"
#include "links/server_link.h"
#include "links/tnc_link.h"
#include "map/documents.h"
#include "platform/failure.h"

#include <string>

namespace ruvenmark {

namespace {

// False where the exit has to stop.
bool SettleMap(MainWindow& main)
{
    try {
        return AskToSaveMap(main);
    } catch (const Failure& failure) {
        main.services.prompts.Message(std::string("The map could not be saved: ") + failure.what());
        return false;
    }
}

void EndLinks(MainWindow& main)
{
    EndGps(main);
    main.links.FileLoading = false;
    main.links.aprsfl.reset();
    CloseTncLink(main);
    EndServerLink(main);
}

void ReleaseTracks(MainWindow& main)
{
    for (ChannelState& state : main.channels) {
        state.TrackMarkers.Clear();
        state.TrackLines.Clear();
        state.TrackVisible.Clear();
    }
}

// True where all could be saved.
bool SaveParts(MainWindow& main)
{
    bool bAll = SavePart(main, Part::Geometry);
    ReleaseTracks(main);
    for (const Part part : {Part::Region, Part::Follow, Part::TrackLists, Part::Filters, Part::Settings,
                            Part::ServerLists, Part::MessageBoxes, Part::Comm, Part::Gps, Part::UnknownFolders,
                            Part::FileLoad, Part::MapLook, Part::Tiles, Part::View})
        bAll &= SavePart(main, part);
    bAll &= AttemptAloud(main, "The settings could not be saved", [&] { main.stored.Flush(); });
    return bAll;
}

} // namespace

StopResult StopMainWindow(MainWindow& main, MayAsk mayAsk)
{
    if (mayAsk == MayAsk::Yes && !SettleMap(main))
        return StopResult::GoesOn;
    EndLinks(main);
    for (const Form form : kForms)
        main.services.dialogs.Hide(form);
    bool bAll = SaveParts(main);
    bAll &= SaveMonitorLogs(main, mayAsk == MayAsk::Yes);
    main.Settings = {};
    main.serverLists = {};
    main.loaded = {}; // What was let go of cannot be saved once more.
    return bAll ? StopResult::Stopped : StopResult::StoppedWithLoss;
}

} // namespace ruvenmark
