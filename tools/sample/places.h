#pragma once

#include <span>
#include <string_view>

namespace ruvenmark::sample {

struct Town {
    std::string_view name;
    double lat, lon;
    std::string_view prefix; // What calls of the place begin with.
    std::string_view locale; // Language of its comments: en, de, fr, es, it, pl, cs, fi.
};

std::span<const Town> Towns();
// The town of that name; it must be in the table.
const Town& TownNamed(std::string_view name);

} // namespace ruvenmark::sample
