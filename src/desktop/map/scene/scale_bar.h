#pragma once

#include "desktop/map/scene/map_look.h"
#include "platform/geometry.h"

#include <QRectF>
#include <QString>

class QPainter;

namespace ruvenmark {

// One half of the scale bar: a round length and the pixels it takes in the middle of the map.
struct ScaleMark {
    double pixels = 0;
    QString text;
};
ScaleMark MilesMark(const MapView& view, double mostPixels);
ScaleMark KilometresMark(const MapView& view, double mostPixels);

QRectF ScaleBarRect(const MapView& view);
void PaintScaleBar(QPainter& painter, const MapView& view, const MapLook& look);

} // namespace ruvenmark
