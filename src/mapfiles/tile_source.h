#pragma once

#include "mapfiles/tile_id.h"

#include <memory>
#include <string>

namespace ruvenmark {

inline constexpr int kDeepestTileZoom = 22;

// Tiles that lie on this machine. Any thread may use it, one at a time; only Stop may be called meanwhile.
class ITileSource {
public:
    ITileSource() = default;
    ITileSource(const ITileSource&) = delete;
    ITileSource& operator=(const ITileSource&) = delete;
    virtual ~ITileSource() = default;

    // The bytes of a tile; empty for one that is not there. Raises Failure for one that cannot be read.
    virtual std::string Read(TileId tile) = 0;
    virtual int MaxZoom() const = 0;
    virtual std::string Attribution() const { return {}; }
    // What is being read comes to an end soon, as a Failure.
    virtual void Stop() {}
};

// A folder of tiles or a tile archive. Raises Failure.
std::unique_ptr<ITileSource> OpenTileSource(const std::string& path);

} // namespace ruvenmark
