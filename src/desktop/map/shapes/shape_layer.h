#pragma once

#include "desktop/map/shapes/shape_painter.h"

#include <QPixmap>
#include <QPoint>
#include <QRegion>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ruvenmark {

// Paints the shapes of a map on a screen. Many of them are kept as a picture while the view only moves: what a move
// uncovers and what has changed is painted into it, the rest is copied.
class ShapeLayer {
public:
    static constexpr std::size_t kFew = 1500; // Lines that are painted as fast as a picture is copied.

    // The layout is that of the frame; ratio: device pixels for one of the view; only: what a region touches.
    void Paint(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const ViewFrame& frame,
               const ShapeLook& look, qreal ratio, const QRegion* only = nullptr);

    // The device pixels that the last Paint could not copy; nothing where it kept no picture.
    const QRegion& Renewed() const { return m_renewed; }

private:
    // A shape as it is in the picture.
    struct Seen {
        std::uint64_t id = 0;
        MercatorPoint from, to;
        std::uint32_t color = 0;
        std::int32_t weight = 0;
        bool bCircle = false, bVisible = false, bBeginArrow = false, bEndArrow = false;
    };

    void Move(QPoint by);
    void FindChanges(const SlotPool<ShapeData>& shapes, const ViewFrame& frame);
    void AddChange(const Seen& seen, const ViewFrame& frame);
    void Renew(const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const ViewFrame& frame, QPointF shift);

    QPixmap m_picture; // Null while none is kept.
    double m_world = 0;
    std::int64_t m_left = 0, m_top = 0; // Of the picture, in device pixels from the world's corner.
    qreal m_ratio = 1;
    ShapeLook m_look;
    std::vector<Seen> m_seen; // By slot.
    QRegion m_renewed;
};

} // namespace ruvenmark
