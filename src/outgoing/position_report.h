#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// What a position report says.
struct PositionReportData {
    double lat = 0, lon = 0;
    std::int32_t symbol = 0; // In the list of positions.
    std::string motion;      // Course and speed, in the place of power, height and gain.
    std::int16_t power = 0;
    std::int32_t height = 0;
    std::int16_t gain = 0, directivity = 0;
    std::int32_t altitude = 0; // Feet; 0: not told.
    std::string_view comment;
};
// Nothing where the tail is too long.
std::optional<std::string> PositionReportText(const PositionReportData& data);

// From the settings, over the server and, where it is wanted, on the air. A Failure ends it without a word; a comment
// that is too long is told in a box.
void SendPositionReport(MainWindow& main, bool sendOnRf);

} // namespace ruvenmark
