#pragma once

#include "mapfiles/tile_id.h"
#include "mapfiles/tile_source.h"

#include <string>

namespace ruvenmark {

// A folder of tiles, z/x/y.png; also .jpg, .jpeg and .webp.
class TileFolder final : public ITileSource {
public:
    // Raises Failure where there is no folder named by a zoom.
    explicit TileFolder(std::string path);

    std::string Read(TileId tile) override;
    int MaxZoom() const override { return m_maxZoom; }

private:
    std::string m_path;
    int m_maxZoom = -1;
};

} // namespace ruvenmark
