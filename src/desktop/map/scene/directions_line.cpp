#include "desktop/map/scene/directions_line.h"

#include <QPainter>
#include <QPolygonF>

#include <cmath>

namespace ruvenmark {

namespace {

// In one piece: no step is longer than half the world, whatever copy of it a point lies in.
QPolygonF LineOf(const ViewFrame& frame, const LineEnds& ends)
{
    constexpr int kSteps = 128;
    const double miles = GreatCircleMiles(ends[0], ends[1]), bearing = InitialBearing(ends[0], ends[1]);
    QPolygonF line{frame.ToPixel(ToMercator(ends[0]))};
    for (int step = 1; step <= kSteps; ++step) {
        const GeoPoint point = step == kSteps ? ends[1] : Destination(ends[0], bearing, miles * step / kSteps);
        QPointF at = frame.ToPixel(ToMercator(point));
        at.rx() -= std::round((at.x() - line.last().x()) / frame.world) * frame.world;
        line.append(at);
    }
    return line;
}

void PaintOnce(QPainter& painter, const QPolygonF& line, const QColor& color)
{
    constexpr double kRing = 5;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 200), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    painter.setPen(QPen(color, 2.5, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    painter.setPen(QPen(color, 2.5));
    painter.setBrush(Qt::white);
    painter.drawEllipse(line.first(), kRing, kRing);
    painter.drawEllipse(line.last(), kRing, kRing);
}

} // namespace

void PaintDirectionsLine(QPainter& painter, const ViewFrame& frame, const LineEnds& ends, const QColor& color)
{
    const QPolygonF line = LineOf(frame, ends);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(frame.Rect(), Qt::IntersectClip);
    for (const int copy : {-1, 0, 1}) {
        const QPolygonF shifted = line.translated(copy * frame.world, 0);
        if (shifted.boundingRect().adjusted(-9, -9, 9, 9).intersects(frame.Rect()))
            PaintOnce(painter, shifted, color);
    }
    painter.restore();
}

} // namespace ruvenmark
