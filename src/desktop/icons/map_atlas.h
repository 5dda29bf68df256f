#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRect>

#include <map>
#include <vector>

namespace ruvenmark {

// All map pictures of one size on one sheet, so that many markers are painted without a look-up or a change of pixmap
// each.
class MapAtlas {
public:
    // Pictures by number, each `cell` device pixels a side; `fallback` is the number that stands in for the others.
    MapAtlas(const std::map<int, QPixmap>& pictures, int cell, int fallback, qreal ratio);

    // Its own pixel ratio is 1: rectangles on it count device pixels.
    const QPixmap& Sheet() const { return m_sheet; }
    QRect Source(int number) const;

    // For QPainter::drawPixmapFragments: the picture with its middle at `centre`, a point in the painter's own
    // coordinates. The painter scales by the ratio; one that counts device pixels (ratio 1) draws Source() with
    // drawPixmap and is faster.
    QPainter::PixmapFragment Fragment(int number, QPointF centre) const;

private:
    QPixmap m_sheet;
    int m_cell;
    qreal m_ratio;
    std::vector<QPoint> m_places;
    QPoint m_fallback;
};

} // namespace ruvenmark
