#include "mapfiles/tile_picture.h"

namespace ruvenmark {

namespace {

constexpr int kMostPasses = 100; // Encoders make ten or so.

// Inside the packed data the byte after FF is never DA: each of these pairs begins a pass or lies in a comment.
bool HasFewPasses(std::string_view jpeg)
{
    int passes = 0;
    for (std::size_t at = jpeg.find("\xff\xda"); at != std::string_view::npos; at = jpeg.find("\xff\xda", at + 2))
        if (++passes > kMostPasses)
            return false;
    return true;
}

} // namespace

std::optional<TileFormat> FormatOfTile(std::string_view bytes)
{
    if (bytes.size() > kMostTileBytes)
        return std::nullopt;
    if (bytes.starts_with("\x89PNG\r\n\x1a\n"))
        return TileFormat::Png;
    if (bytes.starts_with("\xff\xd8\xff") && HasFewPasses(bytes))
        return TileFormat::Jpeg;
    if (bytes.starts_with("RIFF") && bytes.size() > 12 && bytes.substr(8, 4) == "WEBP")
        return TileFormat::WebP;
    return std::nullopt;
}

} // namespace ruvenmark
