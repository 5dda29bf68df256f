#pragma once

#include "desktop/map/view/view_frame.h"

#include <QColor>

#include <array>

class QPainter;

namespace ruvenmark {

using LineEnds = std::array<GeoPoint, 2>;

// The way along the great circle, with a ring at both ends.
void PaintDirectionsLine(QPainter& painter, const ViewFrame& frame, const LineEnds& ends, const QColor& color);

} // namespace ruvenmark
