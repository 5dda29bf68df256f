#include "mapfiles/tile_folder.h"

#include "mapfiles/regular_file.h"
#include "mapfiles/tile_picture.h"
#include "platform/failure.h"

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace ruvenmark {

TileFolder::TileFolder(std::string path) : m_path(std::move(path))
{
    std::error_code error;
    for (int zoom = 0; zoom <= kDeepestTileZoom; ++zoom)
        if (std::filesystem::is_directory(m_path + "/" + std::to_string(zoom), error))
            m_maxZoom = zoom;
    if (m_maxZoom < 0)
        throw Failure("The folder holds no tiles.");
}

std::string TileFolder::Read(TileId tile)
{
    const std::string stem =
        m_path + "/" + std::to_string(tile.z) + "/" + std::to_string(tile.x) + "/" + std::to_string(tile.y);
    for (const std::string_view suffix : {".png", ".jpg", ".jpeg", ".webp"}) {
        const std::string name = stem + std::string(suffix);
        if (access(name.c_str(), R_OK) != 0)
            continue;
        const RegularFile file(name);
        if (file.Size() > kMostTileBytes)
            throw Failure(name + " is too large for a tile.");
        return file.Read();
    }
    return {};
}

} // namespace ruvenmark
