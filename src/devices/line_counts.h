#pragma once

#include "aprs/packet.h"

#include <array>
#include <cstdint>

namespace ruvenmark {

// What became of the lines a source was given.
struct LineCounts {
    std::uint64_t decoded = 0;
    std::array<std::uint64_t, aprs::kRefusalCount> undecoded{}; // By aprs::Refusal.

    void Add(aprs::Refusal refusal);
    std::uint64_t Undecoded() const;
};

} // namespace ruvenmark
