#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ruvenmark {

// Servers that many know. The first one is used where the settings name none.
struct KnownTileServer {
    std::string_view name, url, credit;
    std::string_view policy; // One or two sentences for the operator.
    std::int32_t maxZoom;
};
inline constexpr std::array kTileServers = {
    KnownTileServer{"OpenStreetMap", "https://tile.openstreetmap.org/{z}/{x}/{y}.png",
                    "\u00A9 OpenStreetMap contributors",
                    "Paid for by donations: for looking at the map only, never for fetching whole areas ahead. "
                    "Rules: operations.osmfoundation.org/policies/tiles",
                    19},
    KnownTileServer{"OpenTopoMap (heights, paths)", "https://tile.opentopomap.org/{z}/{x}/{y}.png",
                    "\u00A9 OpenStreetMap contributors, SRTM | style: \u00A9 OpenTopoMap (CC-BY-SA)",
                    "A small server of volunteers, often slow: for looking at the map only.", 17},
    KnownTileServer{
        "A server on this computer", "http://localhost:8080/tile/{z}/{x}/{y}.png", "\u00A9 OpenStreetMap contributors",
        "Your own server. Put its port and path into the address, and into the credit whose data it shows.", 19},
};
inline constexpr std::int32_t kMostTileZoom = 19; // Where a server is none of these.

// The index in kTileServers, -1 where it is none of them.
constexpr std::int32_t TileServerOf(std::string_view url)
{
    for (std::size_t i = 0; i < kTileServers.size(); ++i)
        if (kTileServers[i].url == url)
            return static_cast<std::int32_t>(i);
    return -1;
}

constexpr std::int32_t MaxZoomOfTiles(std::string_view url)
{
    const std::int32_t server = TileServerOf(url);
    return server < 0 ? kMostTileZoom : kTileServers[static_cast<std::size_t>(server)].maxZoom;
}

} // namespace ruvenmark
