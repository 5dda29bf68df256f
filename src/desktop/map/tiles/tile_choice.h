#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

struct TileSettings;

// Where the map's pictures of the ground come from.
struct TileChoice {
    enum class Kind : std::uint8_t { Off, Server, Local };
    Kind kind = Kind::Off;
    std::string where;       // A URL as IsTileUrl wants it, or the path of a folder of tiles or of a tile archive.
    std::string credit = {}; // Of a server's map; empty: the server is named.
    int maxZoom = 19;        // Of a server.
};

// What lies on this machine first, then the server if it is switched on.
TileChoice TileChoiceOf(const TileSettings& settings);

} // namespace ruvenmark
