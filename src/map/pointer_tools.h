#pragma once

#include "map/pinpoint_target.h"

#include <string>

namespace ruvenmark {

struct MainWindow;

// Degrees with at most 5 decimals.
struct LatLonText {
    std::string lat, lon;
};
LatLonText TextOfPoint(GeoPoint point);

// A button "PinPoint": its dialog stands aside, and the next click on the map is for whoever asked.
void StartPinPoint(MainWindow& main, const PinPointTarget& target);
bool IsPinPointing(const MainWindow& main);
void EndPinPoint(
    MainWindow& main); // Esc, too. Gives up: pointer and dialog are as before. Nothing where no click is waited for.

// x and y are pixels of the map window.
// The position under the pointer, in txtTbCoordinates; empty off the world.
void mpCtrl_MouseMove(MainWindow& main, double x, double y);
void ShowCoordinates(MainWindow& main); // Anew, in the form that is chosen now.
// True when the click was waited for and is used up.
bool mpCtrl_Click(MainWindow& main, double x, double y);

} // namespace ruvenmark
