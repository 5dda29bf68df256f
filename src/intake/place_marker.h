#pragma once

#include "core/channel.h"
#include "platform/slot_pool.h"

namespace ruvenmark {

struct MainWindow;
struct PosReport;

// Places the marker of a position report: adds it, moves it, or makes the track step. The hint is the station's marker
// as it was last found. Raises Failure.
void PlaceMarker(MainWindow& main, Channel channel, const PosReport& report, SlotRef hint, bool bTracked);

} // namespace ruvenmark
