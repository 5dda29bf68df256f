#pragma once

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

// Which shapes are seen, and where. A shape's ends never change, so their projection is kept from one look to the next.
class ShapeLayout {
public:
    void Update(const SlotPool<ShapeData>& shapes, const ViewFrame& frame);

    const std::vector<LineItem>& Lines() const { return m_lines; }
    const std::vector<CircleItem>& Circles() const { return m_circles; }

private:
    struct Projected {
        std::uint64_t id = 0; // Of the shape that it was worked out for.
        MercatorPoint from, to;
    };

    const Projected& Project(SlotRef ref, const ShapeData& shape);
    bool TakeSquare(QPointF at);
    void AddLine(SlotRef ref, const ShapeData& shape, const ViewFrame& frame);
    void AddCircle(SlotRef ref, const ShapeData& shape, const ViewFrame& frame);

    std::vector<Projected> m_projected; // By slot.
    std::vector<bool> m_taken;          // Squares with a short line in this view, row by row.
    std::size_t m_columns = 0;
    std::vector<LineItem> m_lines;
    std::vector<CircleItem> m_circles;
};

// The part of a line that lies in a rectangle; false where none does.
bool CutLine(QLineF& line, const QRectF& rect);

} // namespace ruvenmark
