#pragma once

namespace ruvenmark {

inline constexpr double kDegree = 3.141592653589793 / 180; // In radians. Qt's moc cannot read <numbers>.
inline constexpr double kMetresPerMile = 1609.344;
inline constexpr double kMilesPerKnot = 1.15;          // Both ways, so that a speed comes back as it was.
inline constexpr double kEarthRadiusMiles = 3958.7613; // Of the sphere that everything is measured on.
inline constexpr double kEquatorMetres = 360 * kDegree * kEarthRadiusMiles * kMetresPerMile;

struct GeoPoint {
    double lat = 0, lon = 0; // Decimal degrees, north and east positive.
    friend bool operator==(const GeoPoint&, const GeoPoint&) = default;
};

// As a point is shown and taken from the map: at most 5 decimals, about a metre.
GeoPoint ShownPoint(GeoPoint point);

// Web Mercator on the unit square: x from 0 (180 west) to 1 (180 east), y from 0 (north) to 1 (south). The poles beyond
// about 85.05 degrees fall on the edges.
struct MercatorPoint {
    double x = 0.5, y = 0.5;
};
MercatorPoint ToMercator(GeoPoint point);
GeoPoint FromMercator(MercatorPoint point);

// Along the great circle, on a sphere.
double GreatCircleMiles(GeoPoint from, GeoPoint to);
// The direction to set out in, degrees from north, clockwise, 0 to below 360.
double InitialBearing(GeoPoint from, GeoPoint to);
// The point that lies `miles` from a point in the direction `bearing` (degrees from north, clockwise).
GeoPoint Destination(GeoPoint from, double bearing, double miles);

inline constexpr double kTileSize = 256; // Pixels of the whole world at zoom 0.

// What the map window shows.
struct MapView {
    GeoPoint centre;
    double zoom = 2;               // The world is kTileSize times 2 to the zoom pixels wide.
    int width = 800, height = 600; // Pixels.

    double WorldPixels() const;
};
struct PixelPoint {
    double x = 0, y = 0; // From the left top corner of the map window.
};
PixelPoint ToPixel(const MapView& view, GeoPoint point);
GeoPoint FromPixel(const MapView& view, PixelPoint pixel);
// Whether the pixel lies neither above nor below the world.
bool IsOnWorld(const MapView& view, PixelPoint pixel);
// On the ground, in the middle of the view.
double MetresPerPixel(const MapView& view);
// The zoom at which the world is so many pixels wide.
double ZoomOf(double worldPixels);

} // namespace ruvenmark
