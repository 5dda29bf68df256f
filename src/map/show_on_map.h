#pragma once

#include "core/channel.h"
#include "platform/geometry.h"
#include "platform/map_model.h"

#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

class TreeNode;
struct MainWindow;

// The station that a marker, or a point of its trail, belongs to.
struct MarkedStation {
    Channel channel;
    std::string call;
};
// Nothing for markers of another kind.
std::optional<MarkedStation> StationOfMarker(const MainWindow& main, std::string_view markerName);

// The station's node under the first folder that has one; null where there is none.
TreeNode* NodeOfStation(const MainWindow& main, Channel channel, std::string_view call);
// The node of a marker: its station's, or the own station's entry with its position. Null where there is none.
TreeNode* NodeOfMarker(MainWindow& main, const Pushpin& pin);

// Brings the map to the front with the point in its middle, near enough to be told apart.
void ShowPoint(MainWindow& main, GeoPoint point);

// The one road on which a marker is shown: the same, and it is picked out. Raises Failure.
void ShowOnMap(MainWindow& main, const Pushpin& pin);

// A marker is picked out where it lies: it is selected, above all others and with its name, and so is its node.
void PickOut(MainWindow& main, const Pushpin& pin);

// Selects the station's node, where it stands.
void SelectStationNode(MainWindow& main, const MarkedStation& station);

// Another node was selected: the marker of its station, if any, is picked out too.
void tvStationList_Select(MainWindow& main);

} // namespace ruvenmark
