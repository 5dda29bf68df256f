#pragma once

#include "desktop/map/shapes/shape_painter.h"

#include <QObject>
#include <QPixmap>
#include <QPoint>
#include <QRegion>
#include <QSize>
#include <QThreadPool>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace ruvenmark {

// Paints the shapes of a map on a screen. Many of them are kept as a picture: while the view only moves, what a move
// uncovers and what has changed is painted into it, the rest is copied. Where more would have to be painted than a
// frame has time for, as after a zoom, a thread of its own makes the next picture, and the last one is shown meanwhile
// at the scale of the view, with a draft of what it lacks.
class ShapeLayer : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t kFew = 1500;      // Lines that are painted as fast as a picture is copied.
    static constexpr std::size_t kAtOnce = 12'000; // Lines that are painted within a frame,
    static constexpr std::size_t kDraft = 60'000;  // and as a draft.

    explicit ShapeLayer(QObject* parent = nullptr);
    ~ShapeLayer() override;

    // The layout is that of the frame; ratio: device pixels for one of the view; only: what a region touches.
    void Paint(QPainter& painter, const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const ViewFrame& frame,
               const ShapeLook& look, qreal ratio, const QRegion* only = nullptr);

    // Whether no picture is being made.
    bool IsReady() const { return !m_bWorking; }
    // Other shapes come: what is kept is not even fit to be shown meanwhile.
    void Forget();

    // The device pixels that the last Paint could not copy; nothing where it kept no picture.
    const QRegion& Renewed() const { return m_renewed; }

signals:
    void Changed(); // The shapes of the last view can be painted as they are.

private:
    // A shape as it is in the picture.
    struct Seen {
        std::uint64_t id = 0;
        MercatorPoint from, to;
        std::uint32_t color = 0;
        std::int32_t weight = 0;
        bool bCircle = false, bVisible = false, bBeginArrow = false, bEndArrow = false;
    };
    // What a picture shows. Its corner is a whole device pixel of the ground; the view's lies up to half a one beside.
    struct Place {
        double world = 0; // Pixels of the view.
        qreal ratio = 1;
        std::int64_t left = 0, top = 0; // Device pixels from the world's corner.
        QSize size;
    };
    struct Job;

    static Place PlaceOf(const ViewFrame& frame, qreal ratio);
    static void PaintAt(const Place& place, QPainter& painter, const ShapesInView& shapes, const ViewFrame& frame,
                        const ShapeLook& look, const QRegion* only);
    void Uncover(const Place& place, const ShapeLook& look);
    QPoint MoveTo(const Place& place) const;
    void Move(const Place& place);
    void FindChanges(const ShapeLayout& layout, const SlotPool<ShapeData>& shapes, const ViewFrame& frame,
                     const Place& place);
    void AddChange(const Seen& seen, const ViewFrame& frame, const Place& place);
    void Renew(const ShapesInView& shapes, const ViewFrame& frame);
    void PutOff();
    void StartWork(std::shared_ptr<const Job> job);
    void Take(std::uint64_t version, const Job& job, const QImage& picture);
    QRectF PaintKept(QPainter& painter, const Place& place) const;

    QPixmap m_picture;           // Null while none is kept.
    Place m_place;               // Of the picture,
    ShapeLook m_look;            // and how it looks.
    bool m_bKnown = false;       // m_seen tells what is in the picture.
    std::vector<Seen> m_seen;    // By slot.
    std::uint64_t m_version = 0; // Another one where what is being made is no longer wanted.
    double m_lastWorld = 0;      // Of the last frame.
    bool m_bWorking = false;
    bool m_bBegun = false; // The first look at these shapes, which has them laid out, is over.
    QRegion m_renewed;
    QThreadPool m_pool;
};

} // namespace ruvenmark
