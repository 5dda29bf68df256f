#include "ui/opened_file.h"

#include "core/main_window.h"
#include "map/documents.h"
#include "map/tile_settings.h"

#include <cstddef>
#include <string>

namespace ruvenmark {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kHead = 4096;
constexpr std::string_view kDatabase = "SQLite format 3\0"sv;

// A FeatureCollection, in whatever order its members stand.
bool IsMap(std::string_view head)
{
    if (head.starts_with("\xEF\xBB\xBF"))
        head.remove_prefix(3);
    const std::size_t first = head.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && head[first] == '{' && head.find("\"type\"") != std::string_view::npos &&
           head.find("Feature") != std::string_view::npos;
}

} // namespace

FileContent ContentOf(IFiles& files, std::string_view path)
{
    if (files.IsFolder(path) || TileSourceOfFile(path) != path)
        return FileContent::Tiles;
    const std::string head = files.Head(path, kHead);
    if (head.starts_with(kDatabase))
        return FileContent::Tiles;
    return IsMap(head) ? FileContent::Map : FileContent::Packets;
}

void OpenContent(MainWindow& main, FileContent content, std::string_view path)
{
    if (content == FileContent::Map) {
        OpenMapFile(main, path);
    } else if (content == FileContent::Tiles) {
        main.map.tiles.source = TileSourceOfFile(path);
        main.map.TilesChanged.Raise();
    }
}

} // namespace ruvenmark
