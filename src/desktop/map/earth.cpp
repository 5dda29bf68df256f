#include "desktop/map/earth.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

double MetresPerPixel(const MapView& view)
{
    return kEquatorMetres * std::cos(view.centre.lat * kDegree) / view.WorldPixels();
}

double ZoomOf(double worldPixels)
{
    return std::log2(worldPixels / kTileSize);
}

GeoPoint Destination(GeoPoint from, double bearing, double miles)
{
    const double angle = miles / kEarthRadiusMiles;
    const double lat = from.lat * kDegree, direction = bearing * kDegree;
    const double sine = std::sin(lat) * std::cos(angle) + std::cos(lat) * std::sin(angle) * std::cos(direction);
    const double toLat = std::asin(std::clamp(sine, -1.0, 1.0));
    const double dLon = std::atan2(std::sin(direction) * std::sin(angle) * std::cos(lat),
                                   std::cos(angle) - std::sin(lat) * std::sin(toLat));
    const double lon = from.lon + dLon / kDegree;
    return {toLat / kDegree, lon - 360 * std::floor((lon + 180) / 360)};
}

} // namespace ruvenmark
