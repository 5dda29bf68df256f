#pragma once

#include "core/desktop.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;
struct TileForm;
struct TileSettings;

// Servers that many know. The first one is used where the settings name none.
struct TileServer {
    std::string_view name, url, credit;
    std::string_view policy; // One or two sentences for the operator.
    std::int32_t maxZoom;
};
inline constexpr std::array kTileServers = {
    TileServer{"OpenStreetMap", "https://tile.openstreetmap.org/{z}/{x}/{y}.png", "\u00A9 OpenStreetMap contributors",
               "Paid for by donations: for looking at the map only, never for fetching whole areas ahead. "
               "Rules: operations.osmfoundation.org/policies/tiles",
               19},
    TileServer{"OpenTopoMap (heights, paths)", "https://tile.opentopomap.org/{z}/{x}/{y}.png",
               "\u00A9 OpenStreetMap contributors, SRTM | style: \u00A9 OpenTopoMap (CC-BY-SA)",
               "A small server of volunteers, often slow: for looking at the map only.", 17},
    TileServer{"A server on this computer", "http://localhost:8080/tile/{z}/{x}/{y}.png",
               "\u00A9 OpenStreetMap contributors",
               "Your own server. Put its port and path into the address, and into the credit whose data it shows.", 19},
};
inline constexpr std::int32_t kMostTileZoom = 19; // Where a server is none of these.
std::int32_t MaxZoomOfTiles(std::string_view url);

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
