#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// Whether the own station can be reported, and how often. A tick is 15 seconds.
struct BeaconState {
    bool PositionDefined = false;
    bool WeatherDefined = false;
    std::int32_t positionInterval = 0; // Ticks between beacons; 0 by hand only.
    std::int32_t weatherInterval = 0;
    std::int32_t positionTicks = 0; // Since the last beacon.
    std::int32_t weatherTicks = 0;
    bool bInTick = false;
    bool bTailBoxOpen = false; // For a comment that is too long.
    bool bTailTold = false;    // In the status line, since a position went through.
    bool bRoadsTold = false;   // Over which links reports go; once a run.
    std::string tncText;       // Of what the status bar shows as sent, where the TNC was given it.
    std::string sentElsewhere; // What the status bar shows where the TNC does not take it.
};

} // namespace ruvenmark
