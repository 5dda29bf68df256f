#include "desktop/map/tiles/tile_choice.h"

#include "map/tile_servers.h"
#include "map/tile_settings.h"

namespace ruvenmark {

TileChoice TileChoiceOf(const TileSettings& settings)
{
    if (!settings.source.empty())
        return {TileChoice::Kind::Local, settings.source, {}};
    if (settings.bOnline)
        return {TileChoice::Kind::Server, settings.urlTemplate, settings.credit, MaxZoomOfTiles(settings.urlTemplate)};
    return {};
}

} // namespace ruvenmark
