#include "platform/map_extent.h"

#include "platform/map_document.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace ruvenmark {

namespace {

constexpr double kTownZoom = 12;
constexpr double kUsedShare = 0.8; // Of the window; the rest is margin, for symbols and names.
constexpr double kMilesADegree = 69.1;
constexpr double kFarthestDegrees = 179; // A circle around the whole world ends there.

// Of points on a circle of length 1: where the shortest arc over all of them begins, and its length.
struct Arc {
    double begin, length;
};
Arc ShortestArc(std::vector<double> places)
{
    std::sort(places.begin(), places.end());
    Arc shortest = {places.front(), places.back() - places.front()};
    for (std::size_t i = 1; i < places.size(); ++i) {
        const double length = 1 - (places[i] - places[i - 1]); // All but the gap ahead of this one.
        if (length < shortest.length)
            shortest = {places[i], length};
    }
    return shortest;
}

void AddCircle(std::vector<GeoPoint>& points, const ShapeData& circle)
{
    const double north = std::min(std::abs(circle.width) / kMilesADegree, kFarthestDegrees);
    const double shrink = std::max(std::cos(circle.from.lat * std::numbers::pi / 180), 0.01);
    const double east = std::min(north / shrink, kFarthestDegrees);
    for (const double sign : {-1.0, 1.0}) {
        points.push_back({std::clamp(circle.from.lat + sign * north, -90.0, 90.0), circle.from.lon});
        points.push_back({circle.from.lat, std::remainder(circle.from.lon + sign * east, 360)});
    }
}

} // namespace

std::vector<GeoPoint> PlacesOf(const MapDocument& document)
{
    std::vector<GeoPoint> points;
    for (const PinData& pin : document.pins)
        points.push_back(pin.point);
    for (const ShapeData& shape : document.shapes) {
        points.push_back(shape.from);
        if (shape.kind == ShapeData::Kind::Line)
            points.push_back(shape.to);
        else
            AddCircle(points, shape);
    }
    return points;
}

MapView ViewOfAll(const std::vector<GeoPoint>& points, MapView view)
{
    std::vector<double> xs;
    double top = 1, bottom = 0;
    for (const GeoPoint point : points) {
        const MercatorPoint place = ToMercator(point);
        xs.push_back(place.x);
        top = std::min(top, place.y);
        bottom = std::max(bottom, place.y);
    }
    const Arc across = ShortestArc(std::move(xs));
    const double middle = across.begin + across.length / 2;
    view.centre = FromMercator({middle - std::floor(middle), (top + bottom) / 2});
    // At zoom 0 a tile is the world. A length of nothing fits at any zoom.
    const double zoomAcross = std::log2(view.width * kUsedShare / (across.length * kTileSize));
    const double zoomDown = std::log2(view.height * kUsedShare / ((bottom - top) * kTileSize));
    view.zoom = std::clamp(std::min(zoomAcross, zoomDown), kMinZoom, kTownZoom);
    return view;
}

} // namespace ruvenmark
