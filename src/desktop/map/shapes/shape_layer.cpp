#include "desktop/map/shapes/shape_layer.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kMostPieces = 100;     // Of what has changed; more are painted as one.
constexpr double kMostEnlarged = 16; // A picture of another scale is not shown beyond that.
constexpr int kFar = 100000;         // Device pixels.

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

bool IsAll(const QRegion& region, const QRect& all)
{
    return region.rectCount() == 1 && region.boundingRect() == all;
}

// Whether of lines that lie all over such a size no more than so many lie in the region.
bool IsLittle(std::size_t lines, const QRegion& region, QSize size, std::size_t most)
{
    double pixels = 0;
    for (const QRect& rect : region)
        pixels += double{1} * rect.width() * rect.height();
    return static_cast<double>(lines) * pixels <= static_cast<double>(most) * size.width() * size.height();
}

} // namespace

// What the thread that makes a picture needs.
struct ShapeLayer::Job {
    ShapesInView shapes;
    ViewFrame frame;
    ShapeLook look;
    Place place;
};

// Into a picture that lies at the place.
void ShapeLayer::PaintAt(const Place& place, QPainter& painter, const ShapesInView& shapes, const ViewFrame& frame,
                         const ShapeLook& look, const QRegion* only)
{
    const double pixels = frame.world * place.ratio;
    painter.translate(frame.left * pixels - static_cast<double>(place.left),
                      frame.top * pixels - static_cast<double>(place.top));
    painter.scale(place.ratio, place.ratio);
    PaintShapes(painter, shapes, frame, look, only);
}

ShapeLayer::ShapeLayer(QObject* parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
    m_pool.setThreadPriority(QThread::LowPriority);
}

ShapeLayer::~ShapeLayer()
{
    m_pool.waitForDone();
}

void ShapeLayer::Forget()
{
    m_picture = {};
    m_bKnown = m_bBegun = false;
    ++m_version;
}

ShapeLayer::Place ShapeLayer::PlaceOf(const ViewFrame& frame, qreal ratio)
{
    const double pixels = frame.world * ratio;
    return {frame.world, ratio, std::llround(frame.left * pixels), std::llround(frame.top * pixels),
            QSize(static_cast<int>(std::ceil(frame.width * ratio)), static_cast<int>(std::ceil(frame.height * ratio)))};
}

void ShapeLayer::Paint(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes,
                       const ViewFrame& frame, const ShapeLook& look, qreal ratio, const QRegion* only)
{
    const std::size_t lines = layout.Lines().size();
    const bool bZooms = std::exchange(m_lastWorld, frame.world) != frame.world; // Each frame is another picture then.
    m_renewed = {};
    if (lines < kFew || (lines <= kAtOnce && bZooms)) {
        m_bKnown = false;
        ++m_version;
        if (frame.world == m_place.world || shapes.Count() == 0)
            m_picture = {}; // Its shapes are gone. What was seen from elsewhere may be seen again.
        PaintShapes(painter, layout.InView(), frame, look, only);
        return;
    }
    const Place place = PlaceOf(frame, ratio);
    if (lines > kAtOnce && !std::exchange(m_bBegun, true) && !m_bWorking)
        PutOff();
    if (!m_bWorking || lines <= kAtOnce) {
        Uncover(place, look);
        FindChanges(layout, shapes, frame, place);
        if (IsLittle(lines, m_renewed, place.size, kAtOnce)) {
            ++m_version;
            Move(place);
            m_look = look;
            Renew(layout.InView(), frame);
        } else {
            m_renewed = {};
            StartWork(std::make_shared<const Job>(Job{layout.InView(), frame, look, place}));
        }
    }
    const QRectF kept = PaintKept(painter, place);
    QRegion lacking = QRegion(frame.Rect().toRect()) - kept.toAlignedRect();
    if (only)
        lacking &= *only;
    if (!m_bKnown && !lacking.isEmpty() && IsLittle(lines, lacking, {frame.width, frame.height}, kDraft))
        PaintDraft(painter, layout.InView(), look, lacking);
}

// What of the view is not in the picture.
void ShapeLayer::Uncover(const Place& place, const ShapeLook& look)
{
    const QRect all(QPoint(), place.size);
    const bool bFits = m_bKnown && m_place.world == place.world && m_place.ratio == place.ratio &&
                       m_place.size == place.size && m_look == look;
    const QPoint by = MoveTo(place);
    m_renewed = !bFits ? QRegion(all) : QRegion(all) - all.translated(by);
}

// Of the picture within the view at a place of the same scale.
QPoint ShapeLayer::MoveTo(const Place& place) const
{
    const auto by = [](std::int64_t from, std::int64_t to) {
        return static_cast<int>(std::clamp<std::int64_t>(from - to, -kFar, kFar));
    };
    return {by(m_place.left, place.left), by(m_place.top, place.top)};
}

void ShapeLayer::Move(const Place& place)
{
    const QRect all(QPoint(), place.size);
    if (m_picture.size() != place.size) {
        m_picture = QPixmap(place.size);
        m_picture.fill(Qt::transparent); // Gives it its format too.
    } else if (const QPoint by = MoveTo(place); !IsAll(m_renewed, all) && !by.isNull()) {
        m_picture.scroll(by.x(), by.y(), all);
    }
    m_place = place;
}

// In how the shapes are since the picture was made; all that is new counts as a change.
void ShapeLayer::FindChanges(const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const ViewFrame& frame,
                             const Place& place)
{
    for (std::size_t slot = shapes.SlotCount(); slot < m_seen.size(); ++slot)
        AddChange(m_seen[slot], frame, place);
    m_seen.resize(shapes.SlotCount());
    for (std::uint32_t slot = 0; slot < m_seen.size(); ++slot) {
        const ShapeData* shape = shapes.At(slot);
        Seen& seen = m_seen[slot];
        const std::uint64_t id = shapes.RefAt(slot).id;
        const bool bSame =
            seen.id == id && (!shape || (seen.bVisible == shape->bVisible && seen.color == shape->foreColor &&
                                         seen.weight == shape->weight && seen.bBeginArrow == shape->bBeginArrowhead &&
                                         seen.bEndArrow == shape->bEndArrowhead));
        if (bSame)
            continue;
        AddChange(seen, frame, place);
        seen = {};
        if (!shape)
            continue;
        seen = {id,
                {},
                {},
                shape->foreColor,
                shape->weight,
                shape->kind == ShapeData::Kind::Circle,
                shape->bVisible,
                shape->bBeginArrowhead,
                shape->bEndArrowhead};
        if (seen.bVisible && !seen.bCircle) {
            seen.from = layout.EndsOf(slot).from;
            seen.to = layout.EndsOf(slot).to;
        }
        AddChange(seen, frame, place);
    }
}

// Where a line comes or goes, one that it hid, or its arrowhead, goes or comes beside it.
void ShapeLayer::AddChange(const Seen& seen, const ViewFrame& frame, const Place& place)
{
    const QRect all(QPoint(), place.size);
    if (!seen.bVisible || IsAll(m_renewed, all))
        return;
    const bool bArrows = seen.bBeginArrow || seen.bEndArrow;
    const double reach = ShapeReach(seen.weight) + (bArrows ? kArrowsApart : kShortLine);
    const QPointF from = frame.ToPixel(seen.from);
    const QPointF to = from + QPointF(seen.to.x - seen.from.x, seen.to.y - seen.from.y) * frame.world;
    const QRectF box = QRectF(from, to).normalized().adjusted(-reach, -reach, reach, reach);
    if (seen.bCircle || m_renewed.rectCount() > kMostPieces)
        m_renewed = all;
    else
        EachCopy(box.left(), box.right(), frame.Rect(), frame.world, [&](double shift) {
            const QRectF inView = box.translated(shift, 0) & frame.Rect();
            m_renewed += QRectF(inView.topLeft() * place.ratio, inView.size() * place.ratio).toAlignedRect() & all;
        });
}

void ShapeLayer::Renew(const ShapesInView& shapes, const ViewFrame& frame)
{
    m_bKnown = true;
    if (m_renewed.isEmpty())
        return;
    QPainter onPicture(&m_picture);
    onPicture.setClipRegion(m_renewed);
    onPicture.setCompositionMode(QPainter::CompositionMode_Clear);
    onPicture.fillRect(m_picture.rect(), Qt::transparent);
    onPicture.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QRegion only = InView(m_renewed, m_place.ratio);
    PaintAt(m_place, onPicture, shapes, frame, m_look, &only);
}

// To the next frame.
void ShapeLayer::PutOff()
{
    m_bWorking = true;
    const auto goOn = [this] {
        m_bWorking = false;
        emit Changed();
    };
    QMetaObject::invokeMethod(this, goOn, Qt::QueuedConnection);
}

// m_seen tells from now on what the picture that is made will show.
void ShapeLayer::StartWork(std::shared_ptr<const Job> job)
{
    m_bWorking = true;
    m_bKnown = false;
    m_pool.start([this, job = std::move(job), version = ++m_version] {
        QImage picture(job->place.size, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        PaintAt(job->place, painter, job->shapes, job->frame, job->look, nullptr);
        painter.end();
        const auto take = [this, job, version, picture] { Take(version, *job, picture); };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    });
}

void ShapeLayer::Take(std::uint64_t version, const Job& job, const QImage& picture)
{
    m_bWorking = false;
    if (version == m_version) {
        m_picture = QPixmap::fromImage(picture, Qt::NoOpaqueDetection); // What a move uncovers must be clear.
        m_place = job.place;
        m_look = job.look;
        m_bKnown = true;
    }
    emit Changed();
}

// At the scale of the view, in the copy of the world that lies nearest its middle. Returns where that is in the view.
QRectF ShapeLayer::PaintKept(QPainter& painter, const Place& place) const
{
    const double pixels = place.world * place.ratio, ofPicture = m_place.world * m_place.ratio;
    const double scale = pixels / ofPicture;
    if (m_picture.isNull() || scale > kMostEnlarged || scale < 1 / kMostEnlarged)
        return {};
    const QSizeF size = QSizeF(m_place.size) * scale;
    QPointF corner(static_cast<double>(m_place.left) * scale - static_cast<double>(place.left),
                   static_cast<double>(m_place.top) * scale - static_cast<double>(place.top));
    corner.rx() -= std::round((corner.x() + (size.width() - place.size.width()) / 2) / pixels) * pixels;
    painter.save();
    painter.scale(1 / place.ratio, 1 / place.ratio);
    if (scale == 1) {
        painter.drawPixmap(corner.toPoint(), m_picture);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRectF(corner, size), m_picture, QRectF(m_picture.rect()));
    }
    painter.restore();
    return {corner / place.ratio, size / place.ratio};
}

} // namespace ruvenmark
