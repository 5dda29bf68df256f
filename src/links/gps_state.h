#pragma once

#include <cstdint>

namespace ruvenmark {

// What is known of the own movement. A valid fix means that Lat, Lon, Course and Speed of the settings hold it.
struct GpsState {
    bool bValidFix = false;
    bool bSameLatLon = false;              // As the fix before.
    double currentLat = 0, currentLon = 0; // Of the last fix that moved.
    std::int16_t GpsUpdateSeconds = 1;     // Between fixes.
    double LastDestDistance = -2;          // Miles; these two while there is no destination.
    double DestDistance = -1;
};

} // namespace ruvenmark
