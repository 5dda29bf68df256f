#pragma once

namespace ruvenmark {

struct MainWindow;

// Whether somebody sits before an empty map who may not know what comes first.
bool WantsFirstSteps(const MainWindow& main);

// The view with all stations in it; without one of a known place nothing happens.
void mnuZoomToStations_Click(MainWindow& main);
bool HasPlacedStations(const MainWindow& main);

} // namespace ruvenmark
