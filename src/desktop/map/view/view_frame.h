#pragma once

#include "platform/geometry.h"

#include <QPointF>
#include <QRectF>

namespace ruvenmark {

// A view of the map with everything worked out that a painter needs for each point.
struct ViewFrame {
    explicit ViewFrame(const MapView& view)
        : world(view.WorldPixels()), width(view.width), height(view.height), zoom(view.zoom)
    {
        const MercatorPoint centre = ToMercator(view.centre);
        left = centre.x - width / 2.0 / world;
        top = centre.y - height / 2.0 / world;
    }

    // In the copy of the world that lies nearest the middle of the view.
    QPointF ToPixel(MercatorPoint point) const
    {
        double dx = point.x - left - width / 2.0 / world;
        dx -= static_cast<int>(dx + 8.5) - 8; // As std::floor(dx + 0.5), which takes longer than all the rest.
        return {dx * world + width / 2.0, (point.y - top) * world};
    }
    QRectF Rect() const { return {0, 0, static_cast<double>(width), static_cast<double>(height)}; }

    double world; // Pixels that the world is wide.
    int width, height;
    double zoom;
    double left = 0, top = 0; // The corner in units of the world; a view across the date line goes below 0 or beyond 1.
};

} // namespace ruvenmark
