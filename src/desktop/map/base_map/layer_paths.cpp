#include "desktop/map/base_map/layer_paths.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ruvenmark {

namespace {

// Which sides of a rectangle a point lies beyond, a bit each.
unsigned SidesBeyond(const QRectF& rect, QPointF p)
{
    return (p.x() < rect.left() ? 1U : 0U) | (p.x() > rect.right() ? 2U : 0U) | (p.y() < rect.top() ? 4U : 0U) |
           (p.y() > rect.bottom() ? 8U : 0U);
}

} // namespace

void AddRing(QPainterPath& path, const LeafReader& reader, const UnitsToPixels& toPixel, const QRectF& rect,
             double step)
{
    const auto& points = reader.Points();
    const auto after = [&](std::size_t i) { return i + 1 < points.size() ? i + 1 : 0; };
    QPointF last = toPixel(points.front()), here = toPixel(points[1]);
    unsigned lastSides = SidesBeyond(rect, last), sides = SidesBeyond(rect, here);
    path.moveTo(last);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF next = toPixel(points[after(i)]);
        const unsigned nextSides = SidesBeyond(rect, next);
        // A corner of cutting stays, or the leaves would not meet.
        const bool bNear = sides == 0 && (here - last).manhattanLength() < step &&
                           !reader.IsCut(points[i - 1], points[i]) && !reader.IsCut(points[i], points[after(i)]);
        if (!bNear && (lastSides & sides & nextSides) == 0) {
            path.lineTo(here);
            last = here;
            lastSides = sides;
        }
        here = next;
        sides = nextSides;
    }
    path.closeSubpath();
}

LinePath::LinePath(const QRectF& rect, const QPen& pen, double step) : m_step(step)
{
    const double margin = pen.widthF() + 2;
    m_rect = rect.adjusted(-margin, -margin, margin, margin);
    for (const qreal dash : pen.style() == Qt::SolidLine ? QList<qreal>() : pen.dashPattern())
        m_dashes.push_back(dash * std::max(1.0, pen.widthF()));
}

void LinePath::Add(const LeafReader& reader, const UnitsToPixels& toPixel, bool bRing)
{
    const auto& points = reader.Points();
    const std::size_t edges = bRing ? points.size() : points.size() - 1;
    Begin(toPixel(points.front()));
    for (std::size_t i = 0; i < edges; ++i) {
        const std::size_t to = i + 1 < points.size() ? i + 1 : 0;
        if (bRing && reader.IsCut(points[i], points[to]))
            Begin(toPixel(points[to]));
        else
            LineTo(toPixel(points[to]));
    }
    End();
}

void LinePath::Begin(QPointF point)
{
    End();
    m_at = m_pending = point;
    m_bOpen = false;
    m_dash = 0;
    m_left = m_dashes.empty() ? 0 : m_dashes.front();
}

void LinePath::LineTo(QPointF point)
{
    m_pending = point;
    if ((point - m_at).manhattanLength() >= m_step)
        End();
}

void LinePath::End()
{
    if (m_pending == m_at)
        return;
    if (m_dashes.empty())
        AddPiece(m_at, m_pending);
    else
        Dash(m_at, m_pending);
    m_at = m_pending;
}

bool LinePath::IsBeyond(QPointF from, QPointF to) const
{
    return (SidesBeyond(m_rect, from) & SidesBeyond(m_rect, to)) != 0;
}

void LinePath::AddPiece(QPointF from, QPointF to)
{
    if (IsBeyond(from, to)) {
        m_bOpen = false;
        return;
    }
    if (!m_bOpen)
        m_path.moveTo(from);
    m_path.lineTo(to);
    m_bOpen = true;
}

void LinePath::Dash(QPointF from, QPointF to)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    if (IsBeyond(from, to)) {
        Skip(length);
        return;
    }
    for (double done = 0; done < length;) {
        const double piece = std::min(m_left, length - done);
        if (m_dash % 2 == 0)
            AddPiece(from + way * (done / length), from + way * ((done + piece) / length));
        else
            m_bOpen = false;
        done += piece;
        Advance(piece);
    }
}

void LinePath::Advance(double length)
{
    m_left -= length;
    if (m_left <= 1e-9) {
        m_dash = (m_dash + 1) % m_dashes.size();
        m_left = m_dashes[m_dash];
    }
}

// Along a way that cannot be seen.
void LinePath::Skip(double length)
{
    m_bOpen = false;
    length = std::fmod(length, std::accumulate(m_dashes.begin(), m_dashes.end(), 0.0));
    while (length > 0) {
        const double piece = std::min(m_left, length);
        length -= piece;
        Advance(piece);
    }
}

} // namespace ruvenmark
