#pragma once

#include <cstdint>

namespace ruvenmark {

enum class RightView : std::uint8_t;
struct WindowState;

// The map in the right pane and the station tree in the left one.
void ShowMapView(WindowState& window);
// A list of messages, and the box tree.
void ShowMessageView(WindowState& window, RightView list);

} // namespace ruvenmark
