#pragma once

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// The two branches of the own station, by the keys of their nodes.
inline constexpr std::string_view kMyPosition = "MyPosition", kMyWeather = "MyWeather";

// Whether there is enough in the settings to report.
bool IsPositionDefined(const MainWindow& main);
bool IsWeatherDefined(const MainWindow& main);
void WorkOutDefined(MainWindow& main);

// Builds what hangs under "My station" anew, and works out what is defined, the beacons' intervals and the own range.
void AddMyStationNode(MainWindow& main);
// Bring one branch up to date.
void UpdateMyPositionNode(MainWindow& main);
void UpdateMyWeatherNode(MainWindow& main);

void mnuMyStationSend_Click(MainWindow& main); // By the selected node.

// The panel of the own call.
void ShowOwnCall(MainWindow& main);
// At the start: without a call nothing is sent, and a line says how to begin.
void SayHowToBegin(MainWindow& main);

} // namespace ruvenmark
