#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Raster tiles under the map. Nothing is fetched from the network until the operator switches it on.
struct TileSettings {
    bool bOnline = false;
    std::string urlTemplate; // See IsTileUrl.
    std::string credit;      // Whose map it is; empty: the server is named.
    std::string source;      // A folder of z/x/y tiles or an MBTiles file, used without the network; empty for none.
};

void LoadTileSettings(MainWindow& main);
void SaveTileSettings(MainWindow& main);

// What a chosen file stands for: a file z/x/y.ext is one of the tiles of the folder above z; any other is a tile file.
std::string TileSourceOfFile(std::string_view chosenFile);

// Commands. Both raise MapSession::TilesChanged.
void mnuOnlineTiles_Click(MainWindow& main);
void mnuTileFile_Click(MainWindow& main); // Puts the source away that is in use, or asks for one.

} // namespace ruvenmark
