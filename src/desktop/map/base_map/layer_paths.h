#pragma once

#include "mapfiles/vector_layer.h"

#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>

#include <cstddef>
#include <vector>

namespace ruvenmark {

struct UnitsToPixels {
    double scale = 1, shiftX = 0, shiftY = 0;
    QPointF operator()(UnitPoint p) const { return {p.x * scale + shiftX, p.y * scale + shiftY}; }
};

// Adds the ring that the reader stands on. Points that change nothing inside the rectangle are left out: those closer
// than `step` to the one before, and those on a way that stays beyond one side.
void AddRing(QPainterPath& path, const LeafReader& reader, const UnitsToPixels& toPixel, const QRectF& rect,
             double step);

// Collects lines for one pen. What cannot be seen in the rectangle is left out and dashes are cut here, so that both
// fall alike in neighbouring rectangles; the path is to be drawn with a solid pen.
class LinePath {
public:
    LinePath(const QRectF& rect, const QPen& pen, double step);

    // The feature that the reader stands on; of a ring not the edges that come from cutting.
    void Add(const LeafReader& reader, const UnitsToPixels& toPixel, bool bRing);
    const QPainterPath& Path() const { return m_path; }

private:
    void Begin(QPointF point);
    void LineTo(QPointF point);
    void End();
    void AddPiece(QPointF from, QPointF to);
    void Dash(QPointF from, QPointF to);
    void Advance(double length);
    void Skip(double length);
    bool IsBeyond(QPointF from, QPointF to) const;

    QRectF m_rect;
    double m_step;
    std::vector<double> m_dashes; // On and off by turns; empty: a solid line.
    QPainterPath m_path;
    QPointF m_at, m_pending;
    bool m_bOpen = false;
    std::size_t m_dash = 0;
    double m_left = 0; // Of the dash or gap at hand.
};

} // namespace ruvenmark
