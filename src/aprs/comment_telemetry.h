#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ruvenmark::aprs {

// What the base-91 digits in a position's comment stand for: pairs worth 0 to 8280 each.
struct CommentTelemetry {
    std::int32_t sequence = 0;
    std::array<std::optional<std::int32_t>, 5> values;
    std::optional<std::int32_t> bits; // Eight, the first in the lowest.
};

// `digits` as PositionReport::telemetry holds them: two to seven pairs.
CommentTelemetry ReadCommentTelemetry(std::string_view digits);

} // namespace ruvenmark::aprs
