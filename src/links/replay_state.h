#pragma once

#include "platform/event.h"
#include "platform/line_time.h"

#include <optional>

namespace ruvenmark {

// How the replay of a packet file goes on. Its speed is ImportForm::speed; the percentage is the status bar's.
struct ReplayState {
    bool bRunning = false;
    bool bPaused = false;
    bool bEndKnown = false;       // Else there is no place to jump to.
    std::optional<LineTime> time; // Of the line that is due; none while no line had one.
    std::optional<int> jumpTo;    // Percent; up to there nothing is waited for.

    Event<> Changed; // Of the time once a second of it.
};

} // namespace ruvenmark
