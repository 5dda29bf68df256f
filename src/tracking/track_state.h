#pragma once

#include <cstdint>

namespace ruvenmark {

// Tracking that all channels share.
struct TrackState {
    bool bShowTrackLine = true;        // A track step draws a line.
    bool bTrackStationPosition = true; // The map follows a tracked station.
    std::int32_t NewMarkerBalloon = 1; // Balloon state of a tracked station's new marker.
};

} // namespace ruvenmark
