#pragma once

#include "desktop/map/view/view_frame.h"

#include <QPointF>

#include <cmath>
#include <cstddef>
#include <vector>

namespace ruvenmark {

// Squares around a view of which each is given away once. They are fixed to the ground: whoever gets one still gets it
// after the view has moved.
class GroundGrid {
public:
    GroundGrid(const ViewFrame& frame, double side, double margin)
        : m_side(side), m_shiftX(margin + Phase(frame.left * frame.world)),
          m_shiftY(margin + Phase(frame.top * frame.world)),
          m_columns(static_cast<std::size_t>((frame.width + 2 * margin) / side) + 2),
          m_taken(m_columns * (static_cast<std::size_t>((frame.height + 2 * margin) / side) + 2))
    {
    }

    // False where the square is taken, or lies farther out than the margin.
    bool Take(QPointF at)
    {
        const double x = (at.x() + m_shiftX) / m_side, y = (at.y() + m_shiftY) / m_side;
        if (x < 0 || y < 0 || x >= static_cast<double>(m_columns))
            return false;
        const std::size_t square = static_cast<std::size_t>(y) * m_columns + static_cast<std::size_t>(x);
        if (square >= m_taken.size() || m_taken[square])
            return false;
        m_taken[square] = true;
        return true;
    }

private:
    double Phase(double edge) const { return edge - std::floor(edge / m_side) * m_side; }

    double m_side, m_shiftX, m_shiftY;
    std::size_t m_columns;
    std::vector<bool> m_taken;
};

} // namespace ruvenmark
