#include "map/markers.h"

#include "core/main_window.h"
#include "core/progress.h"
#include "core/tree_selection.h"
#include "map/marker_names.h"
#include "map/names_state.h"
#include "map/show_on_map.h"
#include "map/station_notes.h"
#include "map/symbols.h"
#include "platform/failure.h"
#include "platform/numbers.h"

#include <optional>
#include <string>
#include <utility>

namespace ruvenmark {

namespace {

// The marker of this name at the place, added where there is none. True when it was added.
std::pair<Pushpin, bool> MarkerAt(Map& map, std::string_view name, const Location& location)
{
    if (auto pin = map.FindPushpin(name)) {
        pin->SetLocation(location);
        return {*pin, false};
    }
    return {map.AddPushpin(location, name), true};
}

} // namespace

void RefreshMarkerNote(MainWindow& main, Channel channel, std::string_view call, Record& record)
{
    auto pin = main.mpCtrl.RequireMap().FindPushpin(MarkerName(channel, call), record.Marker);
    if (!pin)
        return;
    record.Marker = pin->Ref();
    pin->SetNoteSource(NoteSourceOf(channel));
    pin->SetHeard(main.services.clock.UnixSeconds());
}

void DeleteMarker(MainWindow& main, std::string_view channelWord, std::string_view markerName)
{
    auto pin = main.mpCtrl.RequireMap().FindPushpin(markerName);
    if (pin && pin->NoteBeginsWith(channelWord))
        pin->Delete();
}

void WalkMarkers(MainWindow& main, const std::function<void(Pushpin&)>& work)
{
    Map& map = main.mpCtrl.RequireMap();
    if (map.DataSetCount() < 1)
        return;
    ProgressWalk walk(main.sbStatusBar, static_cast<std::size_t>(map.RecordCount()));
    for (Pushpin& pin : map.AllRecords()) {
        work(pin);
        walk.Step();
    }
}

Pushpin ShowStationMarker(MainWindow& main, const StationNode& station, const Record& record, GeoPoint point)
{
    return ShowMarkerOfStation(main, station.rootKey, station.node->Text(), record, point);
}

Pushpin ShowMarkerOfStation(MainWindow& main, std::string_view channelWord, std::string_view call, const Record& record,
                            GeoPoint point)
{
    Map& map = main.mpCtrl.RequireMap();
    const std::string name = MarkerName(channelWord, call);
    auto [pin, bNew] = MarkerAt(map, name, map.GetLocation(point.lat, point.lon));
    if (bNew)
        pin.SetBalloonState(1);
    pin.SetNote(MarkerNote(channelWord, record));
    return pin;
}

Pushpin ShowMyMarker(MainWindow& main)
{
    Map& map = main.mpCtrl.RequireMap();
    const Location location = map.GetLocation(ToDouble(SettingText(main.Settings, Setting::Lat)),
                                              ToDouble(SettingText(main.Settings, Setting::Lon)));
    Pushpin pin = MarkerAt(map, SettingText(main.Settings, Setting::Call), location).first;
    pin.SetSymbol(kMyStationSymbol);
    pin.SetBalloonState(1);
    return pin;
}

void ForEachMarkerOfRoot(MainWindow& main, const TreeNode& root, const std::function<void(Pushpin&)>& work)
{
    Map& map = main.mpCtrl.RequireMap();
    if (map.DataSetCount() < 1)
        return;
    const std::string key = root.Key();
    const TreeNode* folder = main.tvStationList.Find(root, kPositions);
    if (!folder)
        throw Failure("the folder does not stand");
    const auto matches = [&](const Pushpin& pin) { return pin.NoteBeginsWith(key); };
    if (folder->Children().size() < static_cast<std::size_t>(map.RecordCount())) {
        ProgressWalk walk(main.sbStatusBar, folder->Children().size());
        for (const auto& station : folder->Children()) {
            auto pin = map.FindPushpin(MarkerName(key, station->Text()));
            if (pin && matches(*pin))
                work(*pin);
            walk.Step();
        }
        return;
    }
    WalkMarkers(main, [&](Pushpin& pin) {
        if (matches(pin))
            work(pin);
    });
}

namespace {

void ShowAllNames(MainWindow& main, bool bShow)
{
    SetNamesState(main, Channel::RF, bShow);
    SetNamesState(main, Channel::TCP, bShow);
    main.tracking.NewMarkerBalloon = bShow ? 1 : 0;
    WalkMarkers(main, [&](Pushpin& pin) { pin.SetBalloonState(bShow ? 1 : 0); });
}

void ShowFolderNames(MainWindow& main, bool bShow)
{
    const TreeNode* root = SelectedRoot(main.tvStationList);
    if (!root)
        return;
    if (const auto channel = ChannelOf(*root))
        SetNamesState(main, *channel, bShow);
    ForEachMarkerOfRoot(main, *root, [&](Pushpin& pin) { pin.SetBalloonState(bShow ? 1 : 0); });
}

void ViewStation(MainWindow& main, const StationNode& station, const Record& record, GeoPoint point)
{
    Pushpin pin = ShowStationMarker(main, station, record, point);
    pin.SetSymbol(SymbolId(record.Get(Field::Symbol)));
    main.tvStationList.SetBold(*station.node, false);
    ShowOnMap(main, pin);
}

} // namespace

void mnuShowAll_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuShowAll", [&] { ShowAllNames(main, true); });
}

void mnuHideAll_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuHideAll", [&] { ShowAllNames(main, false); });
}

void mnuShowFolderStations_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuShowFolderStations", [&] { ShowFolderNames(main, true); });
}

void mnuHideFolderStations_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuHideFolderStations", [&] { ShowFolderNames(main, false); });
}

void mnuViewPosition_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    if (!station)
        return;
    const std::string call(station->node->Text());
    const Record* record = station->channel ? main.Of(*station->channel).Stations.Find(call) : nullptr;
    const auto point = record ? PositionOf(*record) : std::nullopt;
    if (!point) {
        main.services.prompts.Message("No position report available for station " + call);
        return;
    }
    Attempt(main.abandoned, "mnuViewPosition", [&] { ViewStation(main, *station, *record, *point); });
}

void mnuViewMyPosition_Click(MainWindow& main)
{
    Attempt(main.abandoned, "mnuViewMyPosition", [&] { ShowOnMap(main, ShowMyMarker(main)); });
}

} // namespace ruvenmark
