#pragma once

#include "outgoing/road_boxes.h"

#include <string>

namespace ruvenmark {

// frmStatus: a status report by hand.
struct StatusForm {
    RoadBoxes roads;
    CallBoxes calls;
    std::string Status; // Kept of the last report sent.
    std::string txtStatus;
    bool bCancelled = true;
};

} // namespace ruvenmark
