#include "desktop/map/tiles/tile_painter.h"

#include "desktop/map/tiles/map_tiles.h"
#include "desktop/map/view/whole_pixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ruvenmark {

namespace {

constexpr QColor kWash(255, 255, 255, 128);

struct Place {
    TileId tile;
    QRectF rect;
    double away = 0; // From the middle of the view.
};

// Edges lie on device pixels, so that no seam shows between tiles.
std::vector<Place> PlacesInView(const ViewFrame& frame, int zoom, qreal ratio)
{
    const int across = 1 << zoom;
    const double size = frame.world / across;
    const double left = frame.left * frame.world, top = frame.top * frame.world;
    const auto snap = [ratio](double value) { return std::round(value * ratio) / ratio; };
    const int firstRow = std::max(0, static_cast<int>(std::floor(top / size)));
    const int lastRow = std::min(across - 1, static_cast<int>(std::floor((top + frame.height) / size)));
    std::vector<Place> places;
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int column = static_cast<int>(std::floor(left / size)); column * size < left + frame.width; ++column) {
            const QPointF corner(snap(column * size - left), snap(row * size - top));
            const QPointF opposite(snap((column + 1) * size - left), snap((row + 1) * size - top));
            const QPointF away = (corner + opposite) / 2 - frame.Rect().center();
            places.push_back({{zoom, ((column % across) + across) % across, row},
                              QRectF(corner, opposite),
                              std::hypot(away.x(), away.y())});
        }
    }
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) { return a.away < b.away; });
    return places;
}

// The part of the nearest coarser tile that covers the same ground.
bool PaintCoarser(QPainter& painter, const Place& place, const MapTiles& tiles)
{
    for (int up = 1; up <= std::min(place.tile.z, 6); ++up) {
        const QImage* picture = tiles.Find({place.tile.z - up, place.tile.x >> up, place.tile.y >> up});
        if (!picture)
            continue;
        const int parts = 1 << up;
        const double width = static_cast<double>(picture->width()) / parts;
        const double height = static_cast<double>(picture->height()) / parts;
        const QRectF source((place.tile.x % parts) * width, (place.tile.y % parts) * height, width, height);
        painter.drawImage(place.rect, *picture, source);
        return true;
    }
    return false;
}

} // namespace

bool PaintTiles(QPainter& painter, const ViewFrame& frame, MapTiles& tiles, qreal ratio, bool bPale)
{
    const int zoom = std::clamp(static_cast<int>(std::lround(frame.zoom + std::log2(ratio))), 0, tiles.MaxZoom());
    const std::vector<Place> places = PlacesInView(frame, zoom, ratio);
    std::vector<TileId> wanted;
    bool bAll = true;
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    ToWholePixels(painter);
    for (const Place& place : places) {
        wanted.push_back(place.tile);
        const QImage* picture = tiles.Find(place.tile);
        if (picture)
            painter.drawImage(place.rect, *picture);
        const bool bPainted = picture || PaintCoarser(painter, place, tiles);
        if (bPainted && bPale)
            painter.fillRect(place.rect, kWash);
        bAll = bAll && bPainted;
    }
    painter.restore();
    tiles.Want(wanted);
    return bAll;
}

} // namespace ruvenmark
