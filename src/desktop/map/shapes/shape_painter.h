#pragma once

#include "desktop/map/shapes/shape_layout.h"

#include <QColor>

#include <cstdint>
#include <optional>

class QPainter;

namespace ruvenmark {

struct ShapeLook {
    std::optional<std::uint32_t> selected; // The slot of the shape that stands out.
    QColor highlight;                      // Around it.
    bool bDarkGround = false;              // Dark colours are then lightened.
};

// Paints trails and circles.
void PaintShapes(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes,
                 const ViewFrame& frame, const ShapeLook& look);

// Where the point of an arrowhead at the line's second end goes, as a length from there: clear of the marker at the end
// where the line is long enough for it, else on the middle of the line. Nothing where the line is too short for any.
std::optional<double> ArrowInset(double lineLength, double arrowLength);

} // namespace ruvenmark
