#pragma once

#include "platform/geometry.h"

#include <vector>

namespace ruvenmark {

struct MapDocument;

// Where something stands on the map; of a circle its outermost points.
std::vector<GeoPoint> PlacesOf(const MapDocument& document);

// The view with its centre and zoom such that all the points are well inside it, across the date line if that is
// shorter. What stands close together is not shown closer than a town. There is at least one point.
MapView ViewOfAll(const std::vector<GeoPoint>& points, MapView view);

} // namespace ruvenmark
