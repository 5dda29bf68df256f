#pragma once

namespace ruvenmark {

struct WindowState;

// The map in the right pane and the station tree in the left one.
void ShowMapView(WindowState& window);

} // namespace ruvenmark
