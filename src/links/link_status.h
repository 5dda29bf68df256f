#pragma once

#include "contracts/byte_link.h"

#include <cstdint>
#include <optional>

namespace ruvenmark {

// What is known of a connection beyond that it stands.
struct LinkStatus {
    std::optional<Moment> since;     // Nothing while there is no connection.
    std::optional<Moment> lastHeard; // The last line that came.
    std::uint64_t lines = 0;
};

} // namespace ruvenmark
