#pragma once

#include <string_view>

namespace ruvenmark {

class IByteStream;
struct MainWindow;

// Replays a saved packet file or a pipe on FL, line by line as it is read, with progress, letting events in once a
// line. Ends where FileLoading turns false. A line too long to be a packet counts as one, refused.
void LoadStationFile(MainWindow& main, std::string_view path);
void LoadStationFile(MainWindow& main, IByteStream& bytes);

// Loads a chosen file, or ends the load that runs.
void mnuImportStations_Click(MainWindow& main);
void mnuLoadStations_Click(MainWindow& main);

} // namespace ruvenmark
