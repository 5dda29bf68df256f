#pragma once

#include "desktop/map/base_map/base_map_style.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace ruvenmark {

// How many people a place must have to be named at a zoom.
double LeastWeight(double zoom, MapStyle style);

// Numbers of areas.
std::vector<std::uint32_t> LargestFirst(std::size_t count, const auto& areaOf)
{
    std::vector<std::pair<double, std::uint32_t>> areas(count);
    for (std::uint32_t i = 0; i < count; ++i)
        areas[i] = {-areaOf(i).area, i};
    std::sort(areas.begin(), areas.end());
    std::vector<std::uint32_t> order(count);
    std::transform(areas.begin(), areas.end(), order.begin(), [](const auto& area) { return area.second; });
    return order;
}

} // namespace ruvenmark
