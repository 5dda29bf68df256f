#pragma once

#include "outgoing/road_boxes.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmObject: a thing at a place, reported by hand.
struct ObjectForm {
    struct Fields {
        std::string txtName, txtLat, txtLon, txtAlt, txtComment;
        std::int32_t cboState = 0, cboSymbol = 0;
    };
    RoadBoxes roads;
    CallBoxes calls;
    Fields kept; // Of the last report sent.
    Fields shown;
};

} // namespace ruvenmark
