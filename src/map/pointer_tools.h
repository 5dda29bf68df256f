#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

class Location;
struct MainWindow;

// Words of the dialogs and boxes that take a position from a click on the map.
inline constexpr std::string_view kPinPointFilter = "Filter";
inline constexpr std::string_view kPinPointFrom = "DirectionsFrom";
inline constexpr std::string_view kPinPointTo = "DirectionsTo";

// Degrees with at most 5 decimals.
struct LatLonText {
    std::string lat, lon;
};
LatLonText LocationToLatLon(const Location& location);

// A button "PinPoint": modeless dialogs stand aside and the next click on the map is for the one of this word.
void StartPinPoint(MainWindow& main, std::string_view source);

// x and y are pixels of the map window.
void mpCtrl_MouseMove(MainWindow& main, double x, double y); // txtTbCoordinates
// True when the click was waited for and is used up.
bool mpCtrl_Click(MainWindow& main, double x, double y);

} // namespace ruvenmark
