#include "mapfiles/tile_source.h"

#include "mapfiles/tile_archive.h"
#include "mapfiles/tile_folder.h"

#include <filesystem>
#include <system_error>

namespace ruvenmark {

std::unique_ptr<ITileSource> OpenTileSource(const std::string& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return std::make_unique<TileFolder>(path);
    return std::make_unique<TileArchive>(path);
}

} // namespace ruvenmark
