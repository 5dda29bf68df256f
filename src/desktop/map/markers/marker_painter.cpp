#include "desktop/map/markers/marker_painter.h"

#include "desktop/icons/map_atlas.h"

#include <QPainter>

#include <cmath>

namespace ruvenmark {

namespace {

// Moves a picture's middle so that the picture's edge lies on a device pixel: it stays crisp.
QPointF Snapped(QPointF at, qreal ratio)
{
    const double half = std::floor(kMarkerPixels * ratio / 2);
    const auto snap = [&](double value) { return (std::round(value * ratio - half) + half) / ratio; };
    return {snap(at.x()), snap(at.y())};
}

void PaintRing(QPainter& painter, QPointF at, const QColor& ring)
{
    constexpr double kRadius = kMarkerPixels / 2.0 + 3;
    painter.save(); // A brush that is left half transparent makes the PDF engine paint pictures so.
    painter.setRenderHint(QPainter::Antialiasing);
    QColor glow = ring;
    glow.setAlpha(70);
    painter.setBrush(glow);
    painter.setPen(QPen(Qt::white, 4));
    painter.drawEllipse(at, kRadius, kRadius);
    painter.setPen(QPen(ring, 2.5));
    painter.drawEllipse(at, kRadius, kRadius);
    painter.restore();
}

} // namespace

void PaintMarkers(QPainter& painter, const std::vector<MarkerItem>& items, const MapAtlas& atlas, qreal ratio,
                  std::optional<std::uint32_t> selected, const QColor& ring)
{
    painter.save();
    std::vector<QPainter::PixmapFragment> fragments;
    fragments.reserve(items.size());
    for (const MarkerItem& item : items) {
        const QPointF at = Snapped(item.at, ratio);
        if (selected == item.slot)
            PaintRing(painter, at, ring);
        fragments.push_back(atlas.Fragment(item.symbol, at));
    }
    painter.drawPixmapFragments(fragments.data(), static_cast<int>(fragments.size()), atlas.Sheet());
    painter.restore();
}

} // namespace ruvenmark
