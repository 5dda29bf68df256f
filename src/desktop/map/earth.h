#pragma once

#include "platform/geometry.h"

#include <numbers>

namespace ruvenmark {

inline constexpr double kDegree = std::numbers::pi / 180; // In radians.
inline constexpr double kEarthRadiusMiles = 3958.7613;    // The sphere of GreatCircleMiles.
inline constexpr double kEquatorMetres = 40075016.686;    // What the width of the world stands for.
inline constexpr double kMetresPerMile = 1609.344;

// On the ground, in the middle of the view.
double MetresPerPixel(const MapView& view);
// The zoom at which the world is so many pixels wide.
double ZoomOf(double worldPixels);

// The point that lies `miles` from a point in the direction `bearing` (degrees from north, clockwise).
GeoPoint Destination(GeoPoint from, double bearing, double miles);

} // namespace ruvenmark
