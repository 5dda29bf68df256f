#pragma once

#include <string>

namespace ruvenmark {

inline constexpr const char* kNoGpsValue = "-- -- -- -- --";

// frmGpsPanel: what its labels say.
struct GpsPanelState {
    std::string lblStatus = "No Position Fix";
    std::string lblLat = kNoGpsValue, lblLon = kNoGpsValue, lblAlt = kNoGpsValue;
    std::string lblCourse = kNoGpsValue, lblSpeed = kNoGpsValue;
    std::string lblDistance = kNoGpsValue, lblDuration = kNoGpsValue;
    std::string lblDestLat, lblDestLon;
};

} // namespace ruvenmark
