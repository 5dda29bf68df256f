#pragma once

#include "core/channel.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace ruvenmark {

class Pushpin;
class TreeNode;
class Record;
struct GeoPoint;
struct MainWindow;
struct StationNode;

// A report came in: writes the note and the time of the station's marker anew, where it has one. Raises Failure.
void RefreshMarkerNote(MainWindow& main, Channel channel, std::string_view call, Record& record);

// Deletes the marker of this name if its note begins with the channel word. Raises Failure.
void DeleteMarker(MainWindow& main, std::string_view channelWord, std::string_view markerName);

// Does the work on each marker, with the wait pointer and the progress bar; without a word where no marker was ever
// added. A Failure of the work ends the walk, and the bar goes all the same. Lets no events in.
void WalkMarkers(MainWindow& main, const std::function<void(Pushpin&)>& work);

// Put the marker of a station of the tree, and that of the own station, where it is known to be: made, with its name
// shown, or moved. Raise Failure.
Pushpin ShowStationMarker(MainWindow& main, const StationNode& station, const Record& record, GeoPoint point);
Pushpin ShowMarkerOfStation(MainWindow& main, std::string_view channelWord, std::string_view call, const Record& record,
                            GeoPoint point);
Pushpin ShowMyMarker(MainWindow& main);

// Does the work on the markers of a folder root: over its stations or over all markers, whichever walk is shorter.
void ForEachMarkerOfRoot(MainWindow& main, const TreeNode& root, const std::function<void(Pushpin&)>& work);

// Commands. A Failure ends them without a word.
void mnuShowAll_Click(MainWindow& main);
void mnuHideAll_Click(MainWindow& main);
void mnuShowFolderStations_Click(MainWindow& main); // On the selected root.
void mnuHideFolderStations_Click(MainWindow& main);
void mnuViewPosition_Click(MainWindow& main); // On the selected station.
void mnuViewMyPosition_Click(MainWindow& main);

} // namespace ruvenmark
