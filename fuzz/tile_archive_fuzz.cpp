#include "mapfiles/markup_text.h"
#include "mapfiles/tile_archive.h"
#include "mapfiles/tile_picture.h"
#include "platform/failure.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

// Any bytes are opened as a tile archive and read as a tile, within the time and the size that are told.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ruvenmark;
    using namespace std::chrono_literals;
    static const std::string path =
        (std::filesystem::temp_directory_path() / ("archive-fuzz-" + std::to_string(getpid()))).string();
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::ofstream(path, std::ios::binary) << bytes;
    const auto begin = std::chrono::steady_clock::now();
    try {
        TileArchive archive(path, 200ms);
        for (const TileId tile : {TileId{0, 0, 0}, {1, 0, 0}, {archive.MaxZoom(), 0, 0}})
            if (archive.Read(tile).size() > kMostTileBytes)
                std::abort();
    } catch (const Failure&) {
    }
    std::filesystem::remove(path);
    if (std::chrono::steady_clock::now() - begin > 5s)
        std::abort();
    FormatOfTile(bytes);
    if (TextOfMarkup(bytes).size() > size)
        std::abort();
    return 0;
}
