#pragma once

#include <cstdint>

namespace ruvenmark {

struct MainWindow;

// Whether somebody is there to be asked about a changed map. Where nobody is, as on a signal, its changes are lost.
enum class MayAsk : bool { No, Yes };

enum class StopResult : std::uint8_t {
    GoesOn, // Cancelled, or the map could not be saved: everything still runs.
    Stopped,
    StoppedWithLoss // Something could not be saved; the operator was told what.
};

// Offers to save the map, ends what runs and saves what was loaded, every part on its own.
StopResult StopMainWindow(MainWindow& main, MayAsk mayAsk = MayAsk::Yes);

} // namespace ruvenmark
