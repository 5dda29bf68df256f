#pragma once

#include <cstdint>
#include <random>
#include <string_view>

namespace ruvenmark {

// Differs from run to run, so that nobody on the air can choose texts that collide.
inline std::uint64_t HashSeed()
{
    static const std::uint64_t seed = (std::uint64_t{std::random_device{}()} << 32U) | std::random_device{}();
    return seed;
}

// FNV-1a, going on from the start.
inline std::uint64_t TextHash(std::uint64_t start, std::string_view text)
{
    std::uint64_t hash = start;
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 0x100000001b3U;
    }
    return hash ^ (hash >> 32U);
}

} // namespace ruvenmark
