#include "desktop/map/widget/under_pointer.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kReach = 4; // Pixels that a pointer may miss by.

double DistanceToSegment(QPointF point, const QLineF& segment)
{
    const QPointF along = segment.p2() - segment.p1(), towards = point - segment.p1();
    const double square = QPointF::dotProduct(along, along);
    const double t = square > 0 ? std::clamp(QPointF::dotProduct(towards, along) / square, 0.0, 1.0) : 0;
    const QPointF away = towards - along * t;
    return std::hypot(away.x(), away.y());
}

} // namespace

const MarkerItem* MarkerUnder(const MarkerLayout& layout, QPointF at)
{
    const MarkerItem* nearest = nullptr;
    double nearestMiss = kReach;
    const auto& items = layout.Items();
    for (std::size_t i = items.size(); i-- > 0;) {
        const QPointF away = items[i].at - at;
        const double miss = std::max(std::abs(away.x()), std::abs(away.y())) - HalfOf(items[i]);
        if (miss <= 0)
            return &items[i];
        if (miss < nearestMiss) {
            nearestMiss = miss;
            nearest = &items[i];
        }
    }
    return nearest;
}

std::optional<std::uint32_t> ShapeUnder(const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, QPointF at)
{
    std::optional<std::uint32_t> found;
    double best = kReach;
    for (const LineItem& item : layout.Lines()) {
        const double distance = DistanceToSegment(at, item.line) - shapes.At(item.slot)->weight / 2.0;
        if (distance <= best) {
            best = distance;
            found = item.slot;
        }
    }
    if (found)
        return found;
    for (const CircleItem& item : layout.Circles()) {
        for (qsizetype i = 1; i < item.outline.size(); ++i) {
            const double distance = DistanceToSegment(at, {item.outline[i - 1], item.outline[i]});
            if (distance <= best) {
                best = distance;
                found = item.slot;
            }
        }
    }
    return found;
}

} // namespace ruvenmark
