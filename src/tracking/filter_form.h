#pragma once

#include "tracking/report_filter.h"

#include <array>
#include <string>

namespace ruvenmark {

// frmFilter: a copy of the three filters that the operator edits, by channel.
struct FilterForm {
    std::array<ReportFilter, 3> fields;
    std::array<std::string, 3> unitLabels = {"miles", "miles", "miles"}; // Beside the distances.
    int SSTab1 = 0;                                                      // The tab in front: 0 RF, 1 TCP, 2 FL.
};

} // namespace ruvenmark
