#pragma once

#include "core/channel.h"

#include <cstdint>
#include <string_view>

namespace ruvenmark {

class Location;
class Pushpin;
struct MainWindow;
struct SettingsState;

// A tracked station moves only by more than this, in miles.
inline constexpr double kTrackStep = 0.02;

// How trails look, from the settings; 0 or false for an index outside the tables. Raise Failure for a setting that is
// no number.
std::int32_t TrackLineWeight(const SettingsState& settings);
bool TrackBeginArrow(const SettingsState& settings);
bool TrackEndArrow(const SettingsState& settings);
std::uint32_t MobileColor(const SettingsState& settings); // Of moving stations in the tree.

// Leaves the marker behind as a track point where the station has moved, and puts a new one at its place. Raises
// Failure.
void AddTrackPoint(MainWindow& main, Channel channel, std::string_view call, Pushpin pin, const Location& location,
                   std::string_view symbolWord);

// Delete points and lines, going on past what is gone already.
void RemoveStationTrack(MainWindow& main, Channel channel, std::string_view call);
void RemoveChannelTracks(MainWindow& main, Channel channel);
void RemoveAllTracks(MainWindow& main);

// Commands on the selected station. A Failure ends them without a word.
void mnuStartTrack_Click(MainWindow& main);
void mnuStopTrack_Click(MainWindow& main);
void mnuShowStationTrack_Click(MainWindow& main);
void mnuHideStationTrack_Click(MainWindow& main);
void mnuRemoveTrack_Click(MainWindow& main);
// Commands for all.
void mnuShowTrack_Click(MainWindow& main); // Tracked stations only.
void mnuRemoveAllTracks_Click(MainWindow& main);
void mnuToolsShowTrackLine_Click(MainWindow& main);
void mnuToolsStationTracking_Click(MainWindow& main);

} // namespace ruvenmark
