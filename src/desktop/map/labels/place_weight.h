#pragma once

#include "desktop/map/base_map/base_map_style.h"

namespace ruvenmark {

// How many people a place must have to be named at a zoom.
double LeastWeight(double zoom, MapStyle style);

} // namespace ruvenmark
