#include "desktop/map/shapes/shape_layout.h"

#include "platform/geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ruvenmark {

namespace {

constexpr double kMostArcs = 4096;

QRectF Surroundings(const ViewFrame& frame)
{
    constexpr double kOut = ShapeLayout::kSurroundings;
    return frame.Rect().adjusted(-kOut, -kOut, kOut, kOut);
}

// The box around a circle on the earth; as wide as the world where it holds a pole.
QRectF Box(const ViewFrame& frame, GeoPoint centre, double angle)
{
    const QPointF middle = frame.ToPixel(ToMercator(centre));
    const double north = std::min(centre.lat + angle / kDegree, 90.0);
    const double south = std::max(centre.lat - angle / kDegree, -90.0);
    const double ratio = std::sin(angle) / std::cos(centre.lat * kDegree);
    const bool bPole = north >= 90 || south <= -90 || angle >= std::numbers::pi / 2 || ratio >= 1;
    const double half = bPole ? frame.world : std::asin(ratio) / (2 * std::numbers::pi) * frame.world;
    const double top = frame.ToPixel(ToMercator({north, centre.lon})).y();
    const double bottom = frame.ToPixel(ToMercator({south, centre.lon})).y();
    return {QPointF(middle.x() - half, top), QPointF(middle.x() + half, bottom)};
}

// As many corners as keep the outline within a quarter of a pixel of the true one.
int Corners(double radiusPixels)
{
    return static_cast<int>(std::clamp(std::numbers::pi * std::sqrt(2 * radiusPixels), 48.0, kMostArcs));
}

// In one piece, beginning and ending in the north. Around a pole its ends lie a world apart.
QPolygonF Outline(const ViewFrame& frame, GeoPoint centre, double angle, int corners)
{
    QPolygonF outline;
    outline.reserve(corners + 1);
    for (int i = 0; i <= corners; ++i) {
        const double bearing = 360.0 * i / corners;
        QPointF at = frame.ToPixel(ToMercator(Destination(centre, bearing, angle * kEarthRadiusMiles)));
        if (i > 0)
            at.rx() -= std::floor((at.x() - outline.last().x()) / frame.world + 0.5) * frame.world;
        outline.append(at);
    }
    return outline;
}

bool IsInside(QPointF at, const QRectF& rect)
{
    return at.x() >= rect.left() && at.x() <= rect.right() && at.y() >= rect.top() && at.y() <= rect.bottom();
}

} // namespace

// Liang and Barsky's way: the part of the line's parameter that each edge leaves.
bool CutLine(QLineF& line, const QRectF& rect)
{
    double first = 0, last = 1;
    const auto edge = [&](double towards, double room) {
        if (towards == 0)
            return room >= 0;
        const double t = room / towards;
        if (towards < 0)
            first = std::max(first, t);
        else
            last = std::min(last, t);
        return first <= last;
    };
    if (!edge(-line.dx(), line.x1() - rect.left()) || !edge(line.dx(), rect.right() - line.x1()) ||
        !edge(-line.dy(), line.y1() - rect.top()) || !edge(line.dy(), rect.bottom() - line.y1()))
        return false;
    line = QLineF(line.pointAt(first), line.pointAt(last));
    return true;
}

void ShapeLayout::Update(const SlotPool<ShapeData>& shapes, const ViewFrame& frame)
{
    m_inView.lines.clear();
    m_inView.circles.clear();
    m_projected.resize(shapes.SlotCount());
    m_inView.lines.reserve(shapes.SlotCount());
    GroundGrid shortLines(frame, kShortLine, kSurroundings);
    for (std::size_t slot = 0; slot < shapes.SlotCount(); ++slot) {
        const ShapeData* shape = shapes.At(slot);
        if (!shape || !shape->bVisible)
            continue;
        if (shape->kind == ShapeData::Kind::Line)
            AddLine(shapes.RefAt(slot), *shape, frame, shortLines);
        else
            AddCircle(shapes.RefAt(slot), *shape, frame);
    }
}

const ShapeLayout::Projected& ShapeLayout::Project(SlotRef ref, const ShapeData& shape)
{
    Projected& projected = m_projected[ref.slot];
    if (projected.id != ref.id) {
        projected = {ref.id, shape.from == m_lastEnd ? m_lastProjected : ToMercator(shape.from), ToMercator(shape.to)};
        m_lastEnd = shape.to;
        m_lastProjected = projected.to;
        projected.to.x -= std::floor(projected.to.x - projected.from.x + 0.5);
    }
    return projected;
}

// The short way round the earth. Mostly there is room for one copy only.
void ShapeLayout::AddLine(SlotRef ref, const ShapeData& shape, const ViewFrame& frame, GroundGrid& shortLines)
{
    const Projected& projected = Project(ref, shape);
    const QPointF from = frame.ToPixel(projected.from);
    const QPointF to =
        from + QPointF(projected.to.x - projected.from.x, projected.to.y - projected.from.y) * frame.world;
    const QLineF line(from, to);
    const QRectF area = Surroundings(frame);
    const double middle = frame.width / 2.0;
    if (std::max(std::abs(from.x() - middle), std::abs(to.x() - middle)) < frame.world - area.width() / 2)
        return AddInCopy(ref, shape, line, area, shortLines);
    const auto [left, right] = std::minmax({from.x(), to.x()});
    EachCopy(left, right, area, frame.world,
             [&](double shift) { AddInCopy(ref, shape, line.translated(shift, 0), area, shortLines); });
}

// A short line counts only where none stands already: a long trail of small steps is seen at any zoom, and costs no
// more than it shows.
void ShapeLayout::AddInCopy(SlotRef ref, const ShapeData& shape, const QLineF& whole, const QRectF& area,
                            GroundGrid& shortLines)
{
    LineItem item{ref.slot, shape.foreColor, shape.weight, false, false, whole};
    const bool bInside = IsInside(whole.p1(), area) && IsInside(whole.p2(), area);
    if (!bInside && !CutLine(item.line, area))
        return;
    const bool bShort = std::abs(whole.dx()) < kShortLine && std::abs(whole.dy()) < kShortLine;
    if (bShort && !shortLines.Take(whole.center()))
        return;
    const auto isWhole = [&](QPointF end, QPointF cut) { return bInside || (cut - end).manhattanLength() <= 0.01; };
    item.bBeginArrow = shape.bBeginArrowhead && isWhole(whole.p1(), item.line.p1());
    item.bEndArrow = shape.bEndArrowhead && isWhole(whole.p2(), item.line.p2());
    m_inView.lines.push_back(item);
}

void ShapeLayout::AddCircle(SlotRef ref, const ShapeData& shape, const ViewFrame& frame)
{
    const double angle = std::min(std::abs(shape.width) / kEarthRadiusMiles, std::numbers::pi);
    const QRectF area = Surroundings(frame);
    const QRectF box = Box(frame, shape.from, angle);
    bool bSeen = false;
    EachCopy(box.left(), box.right(), area, frame.world, [&](double) { bSeen = true; });
    if (!bSeen || box.top() > area.bottom() || box.bottom() < area.top())
        return;
    const int corners = Corners(std::max(box.width(), box.height()) / 2);
    const QPolygonF outline = Outline(frame, shape.from, angle, corners);
    const QRectF bounds = outline.boundingRect(); // Around a pole it may lie a world beside the box.
    EachCopy(bounds.left(), bounds.right(), area, frame.world, [&](double shift) {
        m_inView.circles.push_back({ref.slot, shape.foreColor, shape.weight, outline.translated(shift, 0)});
    });
}

} // namespace ruvenmark
