#include "desktop/map/shapes/shape_painter.h"

#include "desktop/model_color.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
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

// Heads of short lines keep apart, or a trail of many small steps would be nothing but heads.
class ArrowSpace {
public:
    bool Take(QPointF at)
    {
        return m_taken
            .emplace(static_cast<int>(std::floor(at.x() / kApart)), static_cast<int>(std::floor(at.y() / kApart)))
            .second;
    }

private:
    static constexpr double kApart = 28; // Pixels.
    std::set<std::pair<int, int>> m_taken;
};

void PaintArrow(QPainter& painter, const QLineF& line, double weight, ArrowSpace& space)
{
    const double length = 7 + 2 * weight, whole = line.length();
    const auto inset = ArrowInset(whole, length);
    if (!inset || (!space.Take(line.center()) && whole < 1.5 * length))
        return;
    const QPointF along(line.dx() / whole, line.dy() / whole);
    const QPointF across(-along.y(), along.x());
    const QPointF tip = line.p2() - along * *inset;
    const QPointF foot = tip - along * length;
    const double half = 3 + weight;
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

void PaintLines(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, bool bDarkGround)
{
    std::map<std::pair<std::uint32_t, std::int32_t>, std::vector<QLineF>> byPen;
    for (const LineItem& item : layout.Lines()) {
        const ShapeData& shape = *shapes.At(item.slot);
        byPen[{shape.foreColor, shape.weight}].push_back(Visible(item.line));
    }
    for (const auto& [look, lines] : byPen) {
        painter.setPen(ShapePen(ShapeColor(look.first, bDarkGround), look.second));
        painter.drawLines(lines.data(), static_cast<int>(lines.size()));
    }
}

void PaintArrows(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, bool bDarkGround)
{
    painter.setPen(Qt::NoPen);
    ArrowSpace space;
    for (const LineItem& item : layout.Lines()) {
        const ShapeData& shape = *shapes.At(item.slot);
        if (!shape.bBeginArrowhead && !shape.bEndArrowhead)
            continue;
        painter.setBrush(ShapeColor(shape.foreColor, bDarkGround));
        if (shape.bEndArrowhead && !item.bEndCut)
            PaintArrow(painter, item.line, shape.weight, space);
        if (shape.bBeginArrowhead && !item.bBeginCut)
            PaintArrow(painter, QLineF(item.line.p2(), item.line.p1()), shape.weight, space);
    }
}

void PaintSelected(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const QRectF& area,
                   std::uint32_t selected, QColor highlight)
{
    highlight.setAlpha(150);
    painter.setPen(ShapePen(highlight, shapes.At(selected) ? shapes.At(selected)->weight + 7 : 7));
    for (const LineItem& item : layout.Lines())
        if (item.slot == selected)
            painter.drawLine(item.line);
    for (const CircleItem& item : layout.Circles())
        if (item.slot == selected)
            PaintOutline(painter, item.outline, area);
}

} // namespace

std::optional<double> ArrowInset(double lineLength, double arrowLength)
{
    constexpr double kShortest = 3; // Pixels; the direction of a shorter line says nothing.
    if (lineLength >= 2 * kMarkerReach + arrowLength)
        return kMarkerReach;
    return lineLength >= kShortest ? std::optional((lineLength - arrowLength) / 2) : std::nullopt;
}

void PaintShapes(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes,
                 const ViewFrame& frame, const ShapeLook& look)
{
    const QRectF area = frame.Rect().adjusted(-32, -32, 32, 32);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    if (look.selected)
        PaintSelected(painter, layout, shapes, area, *look.selected, look.highlight);
    for (const CircleItem& item : layout.Circles()) {
        const ShapeData& shape = *shapes.At(item.slot);
        painter.setPen(ShapePen(ShapeColor(shape.foreColor, look.bDarkGround), shape.weight));
        PaintOutline(painter, item.outline, area);
    }
    PaintLines(painter, layout, shapes, look.bDarkGround);
    PaintArrows(painter, layout, shapes, look.bDarkGround);
    painter.restore();
}

} // namespace ruvenmark
