#include "map/show_on_map.h"

#include "core/main_window.h"
#include "core/tree_selection.h"
#include "core/views.h"
#include "map/marker_names.h"
#include "map/selection.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr double kNearZoom = 10;

// Whether the operator is at this node already: at the station's node in any folder, or at one of its facts.
bool IsUnderSelection(const MainWindow& main, const TreeNode& node)
{
    for (const TreeNode* at = main.tvStationList.Selected(); at; at = at->Parent()) {
        const TreeNode* folder = at->Parent();
        if (folder && folder->Parent() && !folder->Parent()->Parent() && at->Text() == node.Text() &&
            ChannelOf(*at) == ChannelOf(node))
            return true;
    }
    return false;
}

// Where its position stands.
TreeNode* OwnNode(MainWindow& main)
{
    TreeNode* entry = main.tvStationList.Find("MyPosition");
    return entry && !entry->Children().empty() ? entry->Children().front() : entry;
}

std::optional<MarkedStation> SelectedMarkerStation(const MainWindow& main)
{
    const auto* pin = std::get_if<Pushpin>(&main.map.Selection);
    const Map* map = main.mpCtrl.ActiveMap();
    const PinData* data = pin && map ? map->Pins().Find(pin->Ref()) : nullptr;
    return data ? StationOfMarker(main, data->name) : std::nullopt;
}

} // namespace

std::optional<MarkedStation> StationOfMarker(const MainWindow& main, std::string_view markerName)
{
    if (markerName.ends_with(kTrailMark))
        markerName.remove_suffix(1);
    for (const ChannelState& state : main.channels) {
        const std::string ending = MarkerName(Traits(state.channel).word, "");
        if (!markerName.ends_with(ending))
            continue;
        const std::string_view call = markerName.substr(0, markerName.size() - ending.size());
        if (state.Stations.Contains(call) || NodeOfStation(main, state.channel, call))
            return MarkedStation{state.channel, std::string(call)};
    }
    return std::nullopt;
}

TreeNode* NodeOfStation(const MainWindow& main, Channel channel, std::string_view call)
{
    const TreeNode* root = main.tvStationList.Find(Traits(channel).word);
    if (!root)
        return nullptr;
    for (const std::string_view word : {kPositions, kStatus, kWeather}) {
        const TreeNode* folder = main.tvStationList.Find(*root, word);
        if (TreeNode* node = folder ? main.tvStationList.Find(*folder, call) : nullptr)
            return node;
    }
    return nullptr;
}

TreeNode* NodeOfMarker(MainWindow& main, const Pushpin& pin)
{
    if (const auto station = StationOfMarker(main, pin.Name()))
        return NodeOfStation(main, station->channel, station->call);
    return pin.Name() == SettingText(main.Settings, Setting::Call) ? OwnNode(main) : nullptr;
}

void ShowPoint(MainWindow& main, GeoPoint point)
{
    ShowMapView(main.window);
    Map& map = main.mpCtrl.RequireMap();
    map.SetView(point, std::max(map.View().zoom, kNearZoom));
}

void ShowOnMap(MainWindow& main, const Pushpin& pin)
{
    ShowPoint(main, pin.Location().Point());
    PickOut(main, pin);
}

void PickOut(MainWindow& main, const Pushpin& pin)
{
    SelectOnMap(main, pin);
    TreeNode* node = NodeOfMarker(main, pin);
    if (node && !IsUnderSelection(main, *node))
        main.tvStationList.Select(node);
}

void SelectStationNode(MainWindow& main, const MarkedStation& station)
{
    if (TreeNode* node = NodeOfStation(main, station.channel, station.call))
        main.tvStationList.Select(node);
}

void tvStationList_Select(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    Map* map = main.mpCtrl.ActiveMap();
    if (!station || !station->channel || !map)
        return;
    if (const auto shown = SelectedMarkerStation(main);
        shown && shown->channel == *station->channel && shown->call == station->node->Text())
        return; // Its marker, or a point of its trail, is selected already.
    const auto pin = map->FindPushpin(MarkerName(Traits(*station->channel).word, station->node->Text()));
    if (pin)
        SelectOnMap(main, *pin);
}

} // namespace ruvenmark
