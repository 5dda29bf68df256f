#pragma once

#include "core/desktop.h"
#include "map/tile_servers.h"

#include <string>

namespace ruvenmark {

struct MainWindow;
struct TileForm;
struct TileSettings;

void frmTiles_Load(TileForm& form, const TileSettings& tiles);
void frmTiles_cboServer_Click(TileForm& form);
void frmTiles_txtUrl_Change(TileForm& form);
// Fetches the tile in the middle of the map and says in one line what came.
void frmTiles_Test(MainWindow& main);
// False where the address is none.
bool frmTiles_Accept(TileForm& form);

// One line for the operator.
std::string TextOfFetched(const FetchedPicture& picture);

// Command: asks for the server and its credit. Raises MapSession::TilesChanged.
void mnuTileServer_Click(MainWindow& main);

} // namespace ruvenmark
