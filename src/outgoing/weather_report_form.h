#pragma once

#include "outgoing/road_boxes.h"

#include <array>
#include <string>

namespace ruvenmark {

// frmWeather: a weather report by hand.
struct WeatherReportForm {
    RoadBoxes roads;
    CallBoxes calls;
    // Wind direction, speed and gust, temperature, rain in the last hour, in the last day and since midnight, humidity,
    // pressure: the order of the report.
    std::array<std::string, 9> boxes;
    bool bCancelled = true;
};

} // namespace ruvenmark
