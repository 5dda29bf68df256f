#pragma once

#include "mapfiles/base_map.h"

#include <QImage>

#include <cstdint>
#include <map>
#include <mutex>
#include <tuple>

namespace ruvenmark {

// The height of land and sea floor as colours, lit from the north west. Heights are relative (the source's grey
// values), about 5 km apart at the equator: the shape of the land, no measure of it. Any thread may use it.
class Relief {
public:
    explicit Relief(const BaseMap& map) : m_map(map) {} // The map must outlive this.

    struct Pictures {
        QImage land, sea; // The whole area as if all of it were land, or sea.
    };
    // For an area with this left top corner in the world, at worldPixels for the world's width. Null pictures where the
    // heights cannot be read.
    Pictures Paint(double left, double top, double worldPixels, int width, int height, bool bDark) const;

private:
    struct Window;

    Window Load(double left, double top, double worldPixels, int width, int height) const;
    bool Copy(Window& window, int left, int top, int right, int bottom) const;
    QImage Tile(std::uint32_t level, std::uint32_t column, std::uint32_t row) const;

    using TileKey = std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>;
    const BaseMap& m_map;
    mutable std::mutex m_mutex;
    mutable std::map<TileKey, QImage> m_tiles;
};

} // namespace ruvenmark
