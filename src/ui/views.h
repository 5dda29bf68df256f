#pragma once

namespace ruvenmark {

struct MainWindow;

// The map in the right pane and the station tree in the left one.
void ShowMapView(MainWindow& main);

} // namespace ruvenmark
