#pragma once

#include "packet_text.h"

#include <span>
#include <string_view>
#include <vector>

namespace ruvenmark::sample {

struct Route {
    std::string_view name;
    std::string_view prefix; // What calls of those who drive it begin with.
    std::span<const packet_text::Place> points;
};

std::vector<Route> Routes();

} // namespace ruvenmark::sample
