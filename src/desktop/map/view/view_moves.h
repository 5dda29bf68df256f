#pragma once

#include "platform/geometry.h"

#include <QPointF>
#include <QSize>

namespace ruvenmark {

// Where a view is to go.
struct ViewTarget {
    MercatorPoint centre;
    double zoom = 4;
};

// The world is then as high as the window.
double LeastZoom(int windowHeight);
// The nearest target that shows nothing but the world.
ViewTarget WithinWorld(ViewTarget target, QSize window);

// The view moved by pixels over the ground.
ViewTarget Panned(const MapView& view, QPointF pixels);
// What lies under the point stays under it.
ViewTarget ZoomedAbout(const MapView& view, QPointF point, double levels);

} // namespace ruvenmark
