#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace ruvenmark {

// One square picture of the world: column and row among 2^z by 2^z, counted from north west.
struct TileId {
    int z = 0, x = 0, y = 0;
    friend bool operator==(const TileId&, const TileId&) = default;
};

inline std::size_t qHash(const TileId& tile, std::size_t seed = 0)
{
    const auto packed = (static_cast<std::uint64_t>(tile.z) << 58U) ^ (static_cast<std::uint64_t>(tile.x) << 29U) ^
                        static_cast<std::uint64_t>(tile.y);
    return std::hash<std::uint64_t>()(packed * 0x9E3779B97F4A7C15U) ^ seed;
}

} // namespace ruvenmark
