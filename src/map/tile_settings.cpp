#include "map/tile_settings.h"

#include "core/main_window.h"
#include "map/tile_url.h"
#include "platform/text.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr FileFilter kTileFiles = {"Map Tiles (*.mbtiles *.png *.jpg *.jpeg *.webp)",
                                   "*.mbtiles *.png *.jpg *.jpeg *.webp"};

bool IsNumber(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

} // namespace

void LoadTileSettings(MainWindow& main)
{
    TileSettings& tiles = main.map.tiles;
    const std::string url = main.stored.Text(Setting::TileURL);
    tiles.urlTemplate = IsTileUrl(url) ? url : DefaultOf(Setting::TileURL);
    tiles.credit = main.stored.Text(Setting::TileCredit);
    tiles.source = main.stored.Text(Setting::TileSource);
    tiles.bOnline = main.stored.Flag(Setting::OnlineTiles);
    main.map.TilesChanged.Raise();
}

void SaveTileSettings(MainWindow& main)
{
    const TileSettings& tiles = main.map.tiles;
    main.stored.SetFlag(Setting::OnlineTiles, tiles.bOnline);
    main.stored.Set(Setting::TileURL, tiles.urlTemplate);
    main.stored.Set(Setting::TileSource, tiles.source);
    main.stored.Set(Setting::TileCredit, tiles.credit);
}

std::string TileSourceOfFile(std::string_view chosenFile)
{
    const auto parts = Split(chosenFile, '/');
    if (parts.size() < 4)
        return std::string(chosenFile);
    const std::string_view file = parts.back();
    const std::string_view column = parts[parts.size() - 2];
    const std::string_view zoom = parts[parts.size() - 3];
    if (!IsNumber(zoom) || !IsNumber(column) || !IsNumber(file.substr(0, file.find('.'))))
        return std::string(chosenFile);
    const std::size_t folderLength = chosenFile.size() - file.size() - column.size() - zoom.size() - 3;
    return folderLength == 0 ? "/" : std::string(chosenFile.substr(0, folderLength));
}

void mnuOnlineTiles_Click(MainWindow& main)
{
    main.map.tiles.bOnline = !main.map.tiles.bOnline;
    main.map.TilesChanged.Raise();
}

void mnuTileFile_Click(MainWindow& main)
{
    std::string& source = main.map.tiles.source;
    if (!source.empty()) {
        source.clear();
    } else {
        const auto chosen = main.services.prompts.OpenFile("Open", kTileFiles);
        if (!chosen || chosen->empty())
            return;
        source = TileSourceOfFile(*chosen);
    }
    main.map.TilesChanged.Raise();
}

} // namespace ruvenmark
