#include "desktop/map/shapes/shape_layer.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr int kMostPieces = 100; // Of what has changed; more are painted as one.

QSize DeviceSize(const ViewFrame& frame, qreal ratio)
{
    return {static_cast<int>(std::ceil(frame.width * ratio)), static_cast<int>(std::ceil(frame.height * ratio))};
}

// In pixels of the view, nowhere too small.
QRegion InView(const QRegion& devicePixels, qreal ratio)
{
    QRegion region;
    for (const QRect& rect : devicePixels) {
        const QRectF inView(rect.x() / ratio, rect.y() / ratio, rect.width() / ratio, rect.height() / ratio);
        region += inView.toAlignedRect().adjusted(-1, -1, 1, 1);
    }
    return region;
}

} // namespace

void ShapeLayer::Paint(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes,
                       const ViewFrame& frame, const ShapeLook& look, qreal ratio, const QRegion* only)
{
    const bool bZooms = m_world != frame.world; // Each frame is another picture then.
    // Where the world comes around, lines jump to the copy that is nearer.
    const bool bAround = frame.world < frame.width + 4 * ShapeLayout::kSurroundings;
    m_world = frame.world;
    m_renewed = {};
    if (bZooms || bAround || layout.Lines().size() < kFew) {
        m_picture = {};
        PaintShapes(painter, layout, shapes, frame, look, only);
        return;
    }
    const double left = frame.left * frame.world * ratio, top = frame.top * frame.world * ratio;
    const std::int64_t deviceLeft = std::llround(left), deviceTop = std::llround(top);
    const QSize size = DeviceSize(frame, ratio);
    if (m_picture.size() != size || m_ratio != ratio || m_look != look) {
        m_picture = QPixmap(size);
        m_picture.fill(Qt::transparent); // Gives it its format too.
        m_renewed = m_picture.rect();
        m_ratio = ratio;
        m_look = look;
    } else {
        const auto by = [](std::int64_t from, std::int64_t to) {
            return static_cast<int>(std::clamp<std::int64_t>(from - to, -100000, 100000));
        };
        Move({by(m_left, deviceLeft), by(m_top, deviceTop)});
    }
    m_left = deviceLeft;
    m_top = deviceTop;
    FindChanges(shapes, frame);
    Renew(layout, shapes, frame, {left - static_cast<double>(deviceLeft), top - static_cast<double>(deviceTop)});
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawPixmap(0, 0, m_picture);
    painter.restore();
}

void ShapeLayer::Move(QPoint by)
{
    const QRect all = m_picture.rect();
    const QRect kept = all.translated(by) & all;
    if (kept.isEmpty())
        m_renewed = all;
    else if (!by.isNull())
        m_picture.scroll(by.x(), by.y(), all, &m_renewed);
}

void ShapeLayer::FindChanges(const SlotPool<ShapeData>& shapes, const ViewFrame& frame)
{
    for (std::size_t slot = shapes.SlotCount(); slot < m_seen.size(); ++slot)
        AddChange(m_seen[slot], frame);
    m_seen.resize(shapes.SlotCount());
    for (std::size_t slot = 0; slot < m_seen.size(); ++slot) {
        const ShapeData* shape = shapes.At(slot);
        Seen& seen = m_seen[slot];
        const std::uint64_t id = shapes.RefAt(slot).id;
        const bool bSame =
            seen.id == id && (!shape || (seen.bVisible == shape->bVisible && seen.color == shape->foreColor &&
                                         seen.weight == shape->weight && seen.bBeginArrow == shape->bBeginArrowhead &&
                                         seen.bEndArrow == shape->bEndArrowhead));
        if (bSame)
            continue;
        AddChange(seen, frame);
        seen = {};
        if (!shape)
            continue;
        seen = {id,
                ToMercator(shape->from),
                ToMercator(shape->to),
                shape->foreColor,
                shape->weight,
                shape->kind == ShapeData::Kind::Circle,
                shape->bVisible,
                shape->bBeginArrowhead,
                shape->bEndArrowhead};
        AddChange(seen, frame);
    }
}

// Where a line comes or goes, one that it hid, or its arrowhead, goes or comes beside it.
void ShapeLayer::AddChange(const Seen& seen, const ViewFrame& frame)
{
    const QRect all = m_picture.rect();
    const bool bAll = m_renewed.rectCount() == 1 && m_renewed.boundingRect() == all;
    if (!seen.bVisible || bAll)
        return;
    const bool bArrows = seen.bBeginArrow || seen.bEndArrow;
    const double reach = ShapeReach(seen.weight) + (bArrows ? kArrowsApart : kShortLine);
    const QPointF from = frame.ToPixel(seen.from);
    double dx = seen.to.x - seen.from.x;
    dx -= std::floor(dx + 0.5);
    const QPointF to = from + QPointF(dx, seen.to.y - seen.from.y) * frame.world;
    const QRectF box = QRectF(from, to).normalized().adjusted(-reach, -reach, reach, reach);
    const QRectF inView = box & frame.Rect();
    if (seen.bCircle || m_renewed.rectCount() > kMostPieces)
        m_renewed = all;
    else if (!inView.isEmpty())
        m_renewed += QRectF(inView.topLeft() * m_ratio, inView.size() * m_ratio).toAlignedRect() & all;
}

// shift: from the picture's corner, which is a whole pixel of the ground, to the view's.
void ShapeLayer::Renew(const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const ViewFrame& frame,
                       QPointF shift)
{
    if (m_renewed.isEmpty())
        return;
    QPainter onPicture(&m_picture);
    onPicture.setClipRegion(m_renewed);
    onPicture.setCompositionMode(QPainter::CompositionMode_Clear);
    onPicture.fillRect(m_picture.rect(), Qt::transparent);
    onPicture.setCompositionMode(QPainter::CompositionMode_SourceOver);
    onPicture.translate(shift);
    onPicture.scale(m_ratio, m_ratio);
    const QRegion only = InView(m_renewed, m_ratio);
    PaintShapes(onPicture, layout, shapes, frame, m_look, &only);
}

} // namespace ruvenmark
