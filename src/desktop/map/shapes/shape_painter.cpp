#include "desktop/map/shapes/shape_painter.h"

#include "desktop/model_color.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <array>
#include <map>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

constexpr double kMarkerReach = 13;    // Pixels that a marker's picture covers around its point.
constexpr double kLargestPlain = 8000; // Coordinates beyond make the painter slow or wrong.

constexpr float kLeastLightness = 0.66F; // On a dark ground.

QColor ShapeColor(std::uint32_t number, bool bDarkGround)
{
    const QColor color = ModelColor(number);
    if (!bDarkGround || color.lightnessF() >= kLeastLightness)
        return color;
    return QColor::fromHslF(std::max(color.hslHueF(), 0.0F), color.hslSaturationF(), kLeastLightness);
}

QPen ShapePen(const QColor& color, double width)
{
    return {color, width, Qt::SolidLine, width > 1 ? Qt::SquareCap : Qt::FlatCap, Qt::RoundJoin};
}

double ArrowLength(std::int32_t weight)
{
    return 7 + 2.0 * weight;
}

// The items in view, or those of them that are seen in a region.
class Shown {
public:
    Shown(const ShapesInView& shapes, const QRegion* only) : m_shapes(shapes), m_bAll(!only)
    {
        if (only)
            m_rects.assign(only->begin(), only->end());
    }

    // Those so many pixels outside too.
    template <typename Visit>
    void EachLine(double beyond, Visit visit) const
    {
        for (const LineItem& item : m_shapes.lines)
            if (m_bAll || IsShown(item.line.p1(), item.line.p2(), ShapeReach(item.weight) + beyond))
                visit(item);
    }
    template <typename Visit>
    void EachCircle(Visit visit) const
    {
        for (const CircleItem& item : m_shapes.circles) {
            const QRectF box = item.outline.boundingRect();
            if (m_bAll || IsShown(box.topLeft(), box.bottomRight(), ShapeReach(item.weight)))
                visit(item);
        }
    }

private:
    bool IsShown(QPointF a, QPointF b, double reach) const
    {
        const auto [left, right] = std::minmax({a.x(), b.x()});
        const auto [top, bottom] = std::minmax({a.y(), b.y()});
        return std::any_of(m_rects.begin(), m_rects.end(),
                           [&, left = left, right = right, top = top, bottom = bottom](const QRectF& rect) {
                               return left - reach < rect.right() && right + reach > rect.left() &&
                                      top - reach < rect.bottom() && bottom + reach > rect.top();
                           });
    }

    const ShapesInView& m_shapes;
    bool m_bAll;
    std::vector<QRectF> m_rects;
};

// Heads of short lines keep apart, or a trail of many small steps would be nothing but heads.
void PaintArrow(QPainter& painter, const QLineF& line, std::int32_t weight, GroundGrid& space)
{
    const double length = ArrowLength(weight), whole = line.length();
    const auto inset = ArrowInset(whole, length);
    if (!inset || (whole < 1.5 * length && !space.Take(line.center())))
        return;
    const QPointF along(line.dx() / whole, line.dy() / whole);
    const QPointF across(-along.y(), along.x());
    const QPointF tip = line.p2() - along * *inset;
    const QPointF foot = tip - along * length;
    const double half = 3.0 + weight;
    const QPointF notch = foot + along * (length / 5);
    const std::array<QPointF, 4> head{tip, foot + across * half, notch, foot - across * half};
    painter.drawPolygon(head.data(), static_cast<int>(head.size()));
}

void PaintOutline(QPainter& painter, const QPolygonF& outline, const QRectF& area)
{
    const QRectF box = outline.boundingRect();
    if (box.width() < kLargestPlain && box.height() < kLargestPlain) {
        painter.drawPolyline(outline);
        return;
    }
    for (qsizetype i = 1; i < outline.size(); ++i) {
        QLineF side(outline[i - 1], outline[i]);
        if (CutLine(side, area))
            painter.drawLine(side);
    }
}

// A line shorter than a pixel as one of a pixel.
QLineF Visible(const QLineF& line)
{
    const bool bDot = std::abs(line.dx()) + std::abs(line.dy()) < 1;
    return bDot ? QLineF(line.center() - QPointF(0.5, 0), line.center() + QPointF(0.5, 0)) : line;
}

void PaintLines(QPainter& painter, const Shown& shown, bool bDarkGround, bool bDraft)
{
    using Look = std::pair<std::uint32_t, std::int32_t>;
    std::map<Look, std::vector<QLineF>> byPen;
    auto pen = byPen.end(); // Mostly that of the line before.
    shown.EachLine(0, [&](const LineItem& item) {
        const Look look{item.color, item.weight};
        if (pen == byPen.end() || pen->first != look)
            pen = byPen.try_emplace(look).first;
        pen->second.push_back(Visible(item.line));
    });
    for (const auto& [look, lines] : byPen) {
        painter.setPen(ShapePen(ShapeColor(look.first, bDarkGround), bDraft ? 0 : look.second));
        painter.drawLines(lines.data(), static_cast<int>(lines.size()));
    }
}

// Lines outside a region take the squares that they take when all is painted.
void PaintArrows(QPainter& painter, const Shown& shown, const ViewFrame& frame, bool bDarkGround)
{
    painter.setPen(Qt::NoPen);
    GroundGrid space(frame, kArrowsApart, ShapeLayout::kSurroundings);
    std::optional<std::uint32_t> color;
    shown.EachLine(2 * kArrowsApart, [&](const LineItem& item) {
        if (!item.bBeginArrow && !item.bEndArrow)
            return;
        if (color != item.color)
            painter.setBrush(ShapeColor(item.color, bDarkGround));
        color = item.color;
        if (item.bEndArrow)
            PaintArrow(painter, item.line, item.weight, space);
        if (item.bBeginArrow)
            PaintArrow(painter, QLineF(item.line.p2(), item.line.p1()), item.weight, space);
    });
}

void PaintSelected(QPainter& painter, const ShapesInView& shapes, const QRectF& area, std::uint32_t selected,
                   QColor highlight)
{
    highlight.setAlpha(150);
    const auto each = [&](const auto& items, auto paint) {
        for (const auto& item : items) {
            if (item.slot != selected)
                continue;
            painter.setPen(ShapePen(highlight, item.weight + 7));
            paint(item);
        }
    };
    each(shapes.lines, [&](const LineItem& item) { painter.drawLine(item.line); });
    each(shapes.circles, [&](const CircleItem& item) { PaintOutline(painter, item.outline, area); });
}

} // namespace

double ShapeReach(std::int32_t weight)
{
    constexpr double kHighlight = 4; // Of a selected one, on each side.
    return std::max(ArrowLength(weight) / 2, 4.0 + weight) + kHighlight;
}

std::optional<double> ArrowInset(double lineLength, double arrowLength)
{
    constexpr double kShortest = 3; // Pixels; the direction of a shorter line says nothing.
    if (lineLength >= 2 * kMarkerReach + arrowLength)
        return kMarkerReach;
    return lineLength >= kShortest ? std::optional((lineLength - arrowLength) / 2) : std::nullopt;
}

void PaintShapes(QPainter& painter, const ShapesInView& shapes, const ViewFrame& frame, const ShapeLook& look,
                 const QRegion* only)
{
    const QRectF area = frame.Rect().adjusted(-32, -32, 32, 32);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    if (look.selected)
        PaintSelected(painter, shapes, area, *look.selected, look.highlight);
    const Shown shown(shapes, only);
    shown.EachCircle([&](const CircleItem& item) {
        painter.setPen(ShapePen(ShapeColor(item.color, look.bDarkGround), item.weight));
        PaintOutline(painter, item.outline, area);
    });
    PaintLines(painter, shown, look.bDarkGround, false);
    PaintArrows(painter, shown, frame, look.bDarkGround);
    painter.restore();
}

void PaintDraft(QPainter& painter, const ShapesInView& shapes, const ShapeLook& look, const QRegion& region)
{
    painter.save();
    painter.setClipRegion(region, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintLines(painter, Shown(shapes, &region), look.bDarkGround, true);
    painter.restore();
}

} // namespace ruvenmark
