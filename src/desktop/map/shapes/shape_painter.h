#pragma once

#include "desktop/map/shapes/shape_layout.h"

#include <QColor>

#include <cstdint>
#include <optional>

class QPainter;
class QRegion;

namespace ruvenmark {

struct ShapeLook {
    std::optional<std::uint32_t> selected; // The slot of the shape that stands out.
    QColor highlight;                      // Around it.
    bool bDarkGround = false;              // Dark colours are then lightened.
    friend bool operator==(const ShapeLook&, const ShapeLook&) = default;
};

inline constexpr double kArrowsApart = 28; // Pixels that the heads of short lines keep apart.

// How far at most, in pixels, a line of this weight is seen beside its ends.
double ShapeReach(std::int32_t weight);

// Paints trails and circles; with a region, at least those that are seen in it: the painter's clip has to do the rest.
// Safe to use from many threads, each with its own painter.
void PaintShapes(QPainter& painter, const ShapesInView& shapes, const ViewFrame& frame, const ShapeLook& look,
                 const QRegion* only = nullptr);

// The lines in a region as thin as can be, without smooth edges and arrowheads: a small part of the work.
void PaintDraft(QPainter& painter, const ShapesInView& shapes, const ShapeLook& look, const QRegion& region);

// Where the point of an arrowhead at the line's second end goes, as a length from there: clear of the marker at the end
// where the line is long enough for it, else on the middle of the line. Nothing where the line is too short for any.
std::optional<double> ArrowInset(double lineLength, double arrowLength);

} // namespace ruvenmark
