#pragma once

#include "platform/geometry.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Where directions start or end.
struct DirectionsEnd {
    std::string name; // A marker's or a place's, or empty for a bare point.
    GeoPoint point;
};

struct Directions {
    double miles = 0;
    double bearing = 0;     // Degrees at the start, 0 to below 360.
    double backBearing = 0; // From the end to the start.
};
Directions WorkOutDirections(GeoPoint from, GeoPoint to);

// One of the 16 words from "N" to "NNW".
std::string_view CompassPoint(double bearing);

// What a typed text stands for: a latitude and longitude, a marker's name, a station's call on any channel, a locator,
// or a place's name.
std::optional<DirectionsEnd> ReadDirectionsEnd(const MainWindow& main, std::string_view text);
// How an end is shown, and read again.
std::string DirectionsEndText(const DirectionsEnd& end);

// End 0 is the start, 1 the end. A text that stands for nothing clears it, as an empty one does, and gives false: what
// was measured before must not stand beside it. Both raise MapSession::DirectionsChanged.
bool SetDirectionsEnd(MainWindow& main, std::size_t end, std::string_view text);
void SetDirectionsEnd(MainWindow& main, std::size_t end, const DirectionsEnd& value);

// The next click on the map sets the end, while the directions show.
void PinPointDirectionsEnd(MainWindow& main, std::size_t end);

// Both ends, distance and bearings, a line each with CR LF between; empty while an end is missing.
std::string DirectionsText(const MainWindow& main);

} // namespace ruvenmark
