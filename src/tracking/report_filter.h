#pragma once

#include <string>

namespace ruvenmark {

// One channel's filter: the texts as they are stored, lists upper-cased, numbers as typed.
struct ReportFilter {
    std::string Dest;   // Subnet names, blanks between.
    std::string Reject; // Calls.
    std::string Call;   // Calls.
    std::string Range;  // Miles.
    std::string Lat, Lon;
    bool bOn = false;
    bool bTracked = true; // A station on the track list is accepted.
    bool bApply = false;  // Reports without a usable position are rejected.
};

} // namespace ruvenmark
