#include "desktop/map/markers/marker_painter.h"

#include "desktop/icons/map_atlas.h"

#include <QPainter>

#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kFadedOpacity = 0.35;

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

// What lies under the small picture of a trail's point, so that it reads on any ground.
QPixmap DotPicture(qreal ratio)
{
    constexpr double kSide = 12;
    QPixmap dot(QSizeF(kSide * ratio, kSide * ratio).toSize());
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.scale(ratio, ratio);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x4A, 0x52, 0x5E), 1));
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawEllipse(QRectF(0, 0, kSide, kSide).adjusted(1, 1, -1, -1));
    return dot;
}

void PaintTrails(QPainter& painter, const std::vector<MarkerItem>& items, const MapAtlas& atlas, qreal ratio)
{
    constexpr double kSmall = 0.3; // Of a marker's picture.
    std::vector<QPainter::PixmapFragment> dots, hints;
    const QPixmap dot = DotPicture(ratio);
    for (const MarkerItem& item : items) {
        if (!item.bTrail)
            continue;
        const double opacity = item.bFaded ? kFadedOpacity : 1;
        dots.push_back(QPainter::PixmapFragment::create(item.at, QRectF(QPointF(), QSizeF(dot.size())), 1 / ratio,
                                                        1 / ratio, 0, opacity));
        QPainter::PixmapFragment hint = atlas.Fragment(item.symbol, item.at);
        hint.scaleX *= kSmall;
        hint.scaleY *= kSmall;
        hint.opacity = opacity;
        hints.push_back(hint);
    }
    if (dots.empty())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmapFragments(dots.data(), static_cast<int>(dots.size()), dot);
    painter.drawPixmapFragments(hints.data(), static_cast<int>(hints.size()), atlas.Sheet());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

} // namespace

void PaintMarkers(QPainter& painter, const std::vector<MarkerItem>& items, const MapAtlas& atlas, qreal ratio,
                  std::optional<std::uint32_t> selected, const QColor& ring)
{
    painter.save();
    PaintTrails(painter, items, atlas, ratio);
    std::vector<QPainter::PixmapFragment> fragments;
    fragments.reserve(items.size());
    for (const MarkerItem& item : items) {
        if (item.bTrail)
            continue;
        const QPointF at = Snapped(item.at, ratio);
        const bool bSelected = selected == item.slot;
        if (bSelected)
            PaintRing(painter, at, ring);
        fragments.push_back(atlas.Fragment(item.symbol, at));
        if (item.bFaded && !bSelected)
            fragments.back().opacity = kFadedOpacity;
    }
    painter.drawPixmapFragments(fragments.data(), static_cast<int>(fragments.size()), atlas.Sheet());
    painter.restore();
}

} // namespace ruvenmark
