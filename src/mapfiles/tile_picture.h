#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ruvenmark {

inline constexpr std::size_t kMostTileBytes = std::size_t{4} * 1024 * 1024;
inline constexpr int kLargestTile = 1024; // Pixels a side.

// What a tile may be. Other formats can name files, run for ever or stand for anything.
enum class TileFormat : std::uint8_t { Png, Jpeg, WebP };

// By the bytes themselves, whatever a name or a server says. Nothing for every other content, for more than
// kMostTileBytes, and for a JPEG of so many passes that it would take minutes to unpack.
std::optional<TileFormat> FormatOfTile(std::string_view bytes);

} // namespace ruvenmark
