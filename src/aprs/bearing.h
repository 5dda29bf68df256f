#pragma once

#include "aprs/packet.h"

#include <cstdint>
#include <optional>

namespace ruvenmark::aprs {

// Where a direction finder hears a signal from.
struct Bearing {
    std::int32_t degrees = 0;
    std::int32_t hits = 0;       // Of eight looks; 9 for a bearing by hand.
    std::int32_t rangeMiles = 0; // How far the bearing may be followed.
    std::int32_t accuracy = 0;   // Degrees; 0 where it is of no use.
};

// "bbb/nrq" of a direction finder (its symbol tells), behind course and speed (protocol reference, chapter 7).
std::optional<Bearing> FindBearing(const PositionReport& report);

} // namespace ruvenmark::aprs
