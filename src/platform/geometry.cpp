#include "platform/geometry.h"

#include "platform/numbers.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ruvenmark {

namespace {

constexpr double kMaxMercatorLat = 85.05112877980659;
constexpr int kShownDecimals = 5;

} // namespace

GeoPoint ShownPoint(GeoPoint point)
{
    return {RoundDecimals(point.lat, kShownDecimals), RoundDecimals(point.lon, kShownDecimals)};
}

MercatorPoint ToMercator(GeoPoint point)
{
    const double lat = std::clamp(point.lat, -kMaxMercatorLat, kMaxMercatorLat);
    const double s = std::sin(lat * kDegree);
    return {point.lon / 360 + 0.5, 0.5 - std::log((1 + s) / (1 - s)) / (4 * std::numbers::pi)};
}

GeoPoint FromMercator(MercatorPoint point)
{
    const double angle = (0.5 - point.y) * 2 * std::numbers::pi;
    return {std::atan(std::sinh(angle)) / kDegree, (point.x - 0.5) * 360};
}

double GreatCircleMiles(GeoPoint from, GeoPoint to)
{
    const double dLat = std::sin((to.lat - from.lat) * kDegree / 2);
    const double dLon = std::sin((to.lon - from.lon) * kDegree / 2);
    const double h = dLat * dLat + std::cos(from.lat * kDegree) * std::cos(to.lat * kDegree) * dLon * dLon;
    return 2 * kEarthRadiusMiles * std::asin(std::sqrt(std::min(1.0, h)));
}

double InitialBearing(GeoPoint from, GeoPoint to)
{
    const double dLon = (to.lon - from.lon) * kDegree;
    const double y = std::sin(dLon) * std::cos(to.lat * kDegree);
    const double x = std::cos(from.lat * kDegree) * std::sin(to.lat * kDegree) -
                     std::sin(from.lat * kDegree) * std::cos(to.lat * kDegree) * std::cos(dLon);
    const double bearing = std::atan2(y, x) / kDegree;
    return bearing < 0 ? std::fmod(bearing + 360, 360) : bearing;
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

double MapView::WorldPixels() const
{
    return kTileSize * std::exp2(zoom);
}

PixelPoint ToPixel(const MapView& view, GeoPoint point)
{
    const MercatorPoint centre = ToMercator(view.centre);
    const MercatorPoint at = ToMercator(point);
    const double world = view.WorldPixels();
    double dx = at.x - centre.x;
    dx -= std::floor(dx + 0.5); // The copy of the world nearest the centre.
    return {dx * world + view.width / 2.0, (at.y - centre.y) * world + view.height / 2.0};
}

GeoPoint FromPixel(const MapView& view, PixelPoint pixel)
{
    const MercatorPoint centre = ToMercator(view.centre);
    const double world = view.WorldPixels();
    double x = centre.x + (pixel.x - view.width / 2.0) / world;
    x -= std::floor(x);
    const double y = std::clamp(centre.y + (pixel.y - view.height / 2.0) / world, 0.0, 1.0);
    return FromMercator({x, y});
}

bool IsOnWorld(const MapView& view, PixelPoint pixel)
{
    const double y = ToMercator(view.centre).y + (pixel.y - view.height / 2.0) / view.WorldPixels();
    return y >= 0 && y <= 1;
}

double MetresPerPixel(const MapView& view)
{
    return kEquatorMetres * std::cos(view.centre.lat * kDegree) / view.WorldPixels();
}

double ZoomOf(double worldPixels)
{
    return std::log2(worldPixels / kTileSize);
}

} // namespace ruvenmark
