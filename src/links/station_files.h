#pragma once

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Replays a saved packet file on FL, with progress, letting events in once a line. Ends where FileLoading turns false.
void LoadStationFile(MainWindow& main, std::string_view path);

// Loads a chosen file, or ends the load that runs.
void mnuImportStations_Click(MainWindow& main);
void mnuLoadStations_Click(MainWindow& main);

} // namespace ruvenmark
