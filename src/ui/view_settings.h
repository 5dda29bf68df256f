#pragma once

namespace ruvenmark {

struct MainWindow;

// What the window shows around the map, the map's tool bars, and how the map looks and where it looks to. A map that
// was opened at the start keeps its own look.
void LoadViewSettings(MainWindow& main);
void SaveViewSettings(MainWindow& main);

// The map that is open is opened at each start, or no longer. Where a new map is open, none is.
void mnuFileUseAtStart_Click(MainWindow& main);

void mnuViewStations_Click(MainWindow& main);

} // namespace ruvenmark
