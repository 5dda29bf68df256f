#include "desktop/map/view/view_moves.h"

#include "platform/map_model.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

double LeastZoom(int windowHeight)
{
    return std::clamp(ZoomOf(std::max(windowHeight, 1)), kMinZoom, kMaxZoom);
}

ViewTarget WithinWorld(ViewTarget target, QSize window)
{
    target.zoom = std::clamp(target.zoom, LeastZoom(window.height()), kMaxZoom);
    const double half = std::min(0.5, window.height() / 2.0 / (kTileSize * std::exp2(target.zoom)));
    target.centre.y = std::clamp(target.centre.y, half, 1 - half);
    target.centre.x -= std::floor(target.centre.x);
    return target;
}

ViewTarget Panned(const MapView& view, QPointF pixels)
{
    const MercatorPoint centre = ToMercator(view.centre);
    const double world = view.WorldPixels();
    return {{centre.x + pixels.x() / world, centre.y + pixels.y() / world}, view.zoom};
}

ViewTarget ZoomedAbout(const MapView& view, QPointF point, double levels)
{
    const double zoom = std::clamp(view.zoom + levels, LeastZoom(view.height), kMaxZoom);
    const QPointF away = point - QPointF(view.width, view.height) / 2;
    const double share = 1 / view.WorldPixels() - 1 / (kTileSize * std::exp2(zoom));
    const MercatorPoint centre = ToMercator(view.centre);
    return {{centre.x + away.x() * share, centre.y + away.y() * share}, zoom};
}

} // namespace ruvenmark
