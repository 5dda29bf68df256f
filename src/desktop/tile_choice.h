#pragma once

#include "desktop/map/online_tiles.h"

namespace ruvenmark {

struct TileSettings;

// Where the map's pictures of the ground come from: what lies on this machine first, then the server if it is switched
// on.
TileChoice TileChoiceOf(const TileSettings& settings);

} // namespace ruvenmark
