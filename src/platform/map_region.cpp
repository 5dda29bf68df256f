#include "platform/map_region.h"

#include "platform/map_model.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

MapView RegionView(std::int32_t region, int width, int height)
{
    const bool bEurope = region == kRegionEurope;
    const MercatorPoint northWest = ToMercator(bEurope ? GeoPoint{64, -13} : GeoPoint{56, -128});
    const MercatorPoint southEast = ToMercator(bEurope ? GeoPoint{35, 34} : GeoPoint{18, -63});
    const double across = std::max(width, 1) / (southEast.x - northWest.x);
    const double down = std::max(height, 1) / (southEast.y - northWest.y);
    const MercatorPoint middle{(northWest.x + southEast.x) / 2, (northWest.y + southEast.y) / 2};
    const double zoom = std::clamp(ZoomOf(std::min(across, down)), kMinZoom, kMaxZoom);
    return {FromMercator(middle), zoom, width, height};
}

} // namespace ruvenmark
