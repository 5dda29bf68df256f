#pragma once

#include "desktop/map/shapes/ground_grid.h"
#include "desktop/map/view/view_frame.h"
#include "platform/map_model.h"
#include "platform/slot_pool.h"

#include <QLineF>
#include <QPolygonF>

#include <cstdint>
#include <vector>

namespace ruvenmark {

// A line of the map in view; `line` is cut to the surroundings of the view.
struct LineItem {
    std::uint32_t slot = 0;
    QLineF line;
    bool bBeginCut = false, bEndCut = false;
};
struct CircleItem {
    std::uint32_t slot = 0;
    QPolygonF outline; // Closed.
};

inline constexpr double kShortLine = 3; // Pixels; of such lines one is enough for each square of that size.

// Which shapes are seen, and where. A shape's ends never change, so their projection is kept from one look to the next.
class ShapeLayout {
public:
    static constexpr double kSurroundings = 96; // Pixels around the view; more than the widest pen and arrowhead.

    void Update(const SlotPool<ShapeData>& shapes, const ViewFrame& frame);

    const std::vector<LineItem>& Lines() const { return m_lines; }
    const std::vector<CircleItem>& Circles() const { return m_circles; }

private:
    struct Projected {
        std::uint64_t id = 0;   // Of the shape that it was worked out for.
        MercatorPoint from, to; // The short way round: the end may lie beyond the edge of the world.
    };

    const Projected& Project(SlotRef ref, const ShapeData& shape);
    void AddLine(SlotRef ref, const ShapeData& shape, const ViewFrame& frame, GroundGrid& shortLines);
    void AddCircle(SlotRef ref, const ShapeData& shape, const ViewFrame& frame);

    std::vector<Projected> m_projected; // By slot.
    std::vector<LineItem> m_lines;
    std::vector<CircleItem> m_circles;
};

// The part of a line that lies in a rectangle; false where none does.
bool CutLine(QLineF& line, const QRectF& rect);

} // namespace ruvenmark
