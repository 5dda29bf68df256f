#pragma once

#include "platform/geometry.h"

#include <cstdint>

namespace ruvenmark {

inline constexpr std::int32_t kRegionNorthAmerica = 1;
inline constexpr std::int32_t kRegionEurope = 2;
constexpr bool IsMapRegion(std::int32_t region)
{
    return region == kRegionNorthAmerica || region == kRegionEurope;
}

// The whole of a region in a window of this size, in pixels: what a new map shows first.
MapView RegionView(std::int32_t region, int width, int height);

} // namespace ruvenmark
