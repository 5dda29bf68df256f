#pragma once

#include "desktop/map/shapes/ground_grid.h"
#include "desktop/map/view/view_frame.h"
#include "platform/map_model.h"
#include "platform/slot_pool.h"

#include <QLineF>
#include <QPolygonF>
#include <QRectF>

#include <cmath>
#include <cstdint>
#include <vector>

namespace ruvenmark {

// A line of the map in view; `line` is cut to the surroundings of the view.
struct LineItem {
    std::uint32_t slot = 0;
    std::uint32_t color = 0; // As the map model numbers it.
    std::int32_t weight = 1;
    bool bBeginArrow = false, bEndArrow = false; // At an end that was not cut off.
    QLineF line;
};
struct CircleItem {
    std::uint32_t slot = 0;
    std::uint32_t color = 0;
    std::int32_t weight = 1;
    QPolygonF outline; // Closed.
};
// All that is known of the shapes in view, for whoever paints them, in any thread.
struct ShapesInView {
    std::vector<LineItem> lines;
    std::vector<CircleItem> circles;
};

inline constexpr double kShortLine = 3; // Pixels; of such lines one is enough for each square of that size.

// Which shapes are seen, and where: in a view that is wider than the world, once for each copy. A shape's ends never
// change, so their projection is kept from one look to the next.
class ShapeLayout {
public:
    static constexpr double kSurroundings = 96; // Pixels around the view; more than the widest pen and arrowhead.

    void Update(const SlotPool<ShapeData>& shapes, const ViewFrame& frame);

    const ShapesInView& InView() const { return m_inView; }
    const std::vector<LineItem>& Lines() const { return m_inView.lines; }
    const std::vector<CircleItem>& Circles() const { return m_inView.circles; }

    struct Projected {
        std::uint64_t id = 0;   // Of the shape that it was worked out for.
        MercatorPoint from, to; // The short way round: the end may lie beyond the edge of the world.
    };
    // Of a line that was not hidden at the last Update.
    const Projected& EndsOf(std::uint32_t slot) const { return m_projected[slot]; }

private:
    const Projected& Project(SlotRef ref, const ShapeData& shape);
    void AddLine(SlotRef ref, const ShapeData& shape, const ViewFrame& frame, GroundGrid& shortLines);
    void AddInCopy(SlotRef ref, const ShapeData& shape, const QLineF& whole, const QRectF& area,
                   GroundGrid& shortLines);
    void AddCircle(SlotRef ref, const ShapeData& shape, const ViewFrame& frame);

    std::vector<Projected> m_projected; // By slot.
    GeoPoint m_lastEnd;                 // Of the line that was projected last, where mostly the next one begins,
    MercatorPoint m_lastProjected = ToMercator({}); // and its projection.
    ShapesInView m_inView;
};

// Calls visit(shift) for each copy of the world where something this wide, in pixels of a view, meets the area.
template <typename Visit>
void EachCopy(double left, double right, const QRectF& area, double world, Visit visit)
{
    const double last = std::floor((area.right() - left) / world);
    for (double copy = std::ceil((area.left() - right) / world); copy <= last; ++copy)
        visit(copy * world);
}

// The part of a line that lies in a rectangle; false where none does.
bool CutLine(QLineF& line, const QRectF& rect);

} // namespace ruvenmark
