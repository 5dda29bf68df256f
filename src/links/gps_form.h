#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmGps: the receiver's port. The first fields outlive the window.
struct GpsForm {
    std::string sGPSPort;
    std::int32_t lGPSBaud = 4800;
    std::int16_t iGPSBaud = 2;
    bool bTrackGpsPosition = true; // Keep the map on the own marker.
    bool bAutoGPS = false;
    bool bConnect = false; // The dialog was accepted.
    // What the dialog shows while it is open.
    std::string cboPort;
    std::int32_t cboBaud = -1; // Of kGpsBauds.
    bool chkTracking = true;
    bool chkAutoGPS = false;
};

} // namespace ruvenmark
