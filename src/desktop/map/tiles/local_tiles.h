#pragma once

#include "mapfiles/tile_source.h"

#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace ruvenmark {

// A tile source for several threads.
class LocalTiles {
public:
    explicit LocalTiles(std::unique_ptr<ITileSource> source) : m_source(std::move(source)) {}

    std::string Read(TileId tile)
    {
        const std::lock_guard lock(m_mutex);
        return m_source->Read(tile);
    }
    int MaxZoom() const { return m_source->MaxZoom(); }
    std::string Attribution() const { return m_source->Attribution(); }
    void Stop() { m_source->Stop(); }

private:
    std::mutex m_mutex;
    std::unique_ptr<ITileSource> m_source;
};

} // namespace ruvenmark
