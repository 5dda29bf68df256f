#pragma once

#include "desktop/map/scene/map_look.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <cstdint>

class QPainter;

namespace ruvenmark {

struct PinData;

// What a balloon says; every text is plain and of one line each.
struct BalloonText {
    QString title;
    QStringList lines;
};
BalloonText BalloonOf(const PinData& pin);
// The same with the place as radio amateurs tell it, and how long ago it was heard; now: seconds since 1970.
BalloonText FullBalloonOf(const PinData& pin, std::int64_t now);

// A balloon at a point of the map: the name and the note, clipped with an ellipsis where they are too long.
class Balloon {
public:
    // `area` is the room it may take; the balloon sits above the point where there is room, else below it.
    Balloon(const BalloonText& text, QPointF point, const QRectF& area, const MapLook& look, bool bPinned);

    const QRectF& Rect() const { return m_rect; } // Without the tail.
    QRectF CloseRect() const;                     // Of the cross that closes a pinned balloon.
    void Paint(QPainter& painter) const;

private:
    void Place(QSizeF size, const QRectF& area);
    void PaintPlate(QPainter& painter) const;

    const MapLook& m_look;
    QPointF m_point;
    bool m_bPinned;
    QString m_title;
    QStringList m_rows; // Broken to fit.
    QRectF m_rect;
};

} // namespace ruvenmark
