#pragma once

#include <string_view>

namespace ruvenmark {

struct ChannelState;
struct MainWindow;

// The radio range in miles of power in watts, antenna height in feet and gain in dB.
double StationRange(double power, double height, double gain);

// Works out MyRange from the settings; a circle that shows is drawn anew. Raises Failure.
void UpdateMyRange(MainWindow& main);
// Draws or redraws the own circle. Raises Failure.
void DrawMyRange(MainWindow& main);

// The circle of a station, where it has one. Raises Failure where the map has lost it; it is forgotten all the same.
void DeleteCircle(ChannelState& state, std::string_view call);
// All circles of a channel. What the map has lost is counted under the place.
void DeleteAllCircles(MainWindow& main, ChannelState& state, std::string_view place);

// Commands. A Failure ends them without a word.
void mnuShowRange_Click(MainWindow& main); // On the selected station.
void mnuHideRange_Click(MainWindow& main);
void mnuHideAllRangeCircles_Click(MainWindow& main);
void mnuShowMyRange_Click(MainWindow& main);
void mnuHideMyRange_Click(MainWindow& main);

} // namespace ruvenmark
