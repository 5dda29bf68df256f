#include "desktop/map/labels/place_weight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace ruvenmark {

double LeastWeight(double zoom, MapStyle style)
{
    constexpr std::array<double, 12> kPeople{2e7, 1.5e7, 7e6, 2.5e6, 8e5, 2.5e5, 9e4, 3.5e4, 1.2e4, 4e3, 1.2e3, 1};
    const double at = std::clamp(zoom, 0.0, kPeople.size() - 1.001);
    const auto below = static_cast<std::size_t>(at);
    const double t = at - static_cast<double>(below);
    const double people = std::exp(std::log(kPeople.at(below)) * (1 - t) + std::log(kPeople.at(below + 1)) * t);
    return InfoOf(style).land == MapStyleInfo::Land::Grey && zoom < 11 ? people * 3 : people;
}

} // namespace ruvenmark
