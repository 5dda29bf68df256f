#pragma once

#include "core/channel.h"

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Places the marker of a position report: adds it, moves it, or makes the track step. Raises Failure.
void PlaceMarker(MainWindow& main, Channel channel, std::string_view call, double lat, double lon,
                 std::string_view symbolWord, bool bTracked);

} // namespace ruvenmark
