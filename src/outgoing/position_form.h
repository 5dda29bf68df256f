#pragma once

#include "outgoing/road_boxes.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmPosition: a position report by hand.
struct PositionForm {
    RoadBoxes roads;
    CallBoxes calls;
    // Kept of the last report sent.
    std::int32_t Symbol = 0;
    double Latitude = 0, Longitude = 0; // 0: not kept.
    std::int32_t Altitude = 0;
    std::int16_t Power = 0;
    std::int32_t Height = 0;
    std::int16_t Gain = 0, Directivity = 0;
    std::string Comment;
    // What the dialog shows.
    std::int32_t cboSymbol = 0;
    std::string txtLat, txtLon, txtAlt, txtPower, txtHeight, txtGain, txtDir, txtComment;
};

} // namespace ruvenmark
