#include "desktop/map/scene/scale_bar.h"

#include "platform/geometry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kMetresPerFoot = 0.3048;
constexpr double kMostPixels = 120;
constexpr double kMargin = 12;

// The largest of 1, 2, 5, 10, 20 ... that is not above a length.
double RoundLength(double most)
{
    const double ten = std::pow(10, std::floor(std::log10(most)));
    if (most >= 5 * ten)
        return 5 * ten;
    return most >= 2 * ten ? 2 * ten : ten;
}

ScaleMark Mark(double most, double perPixel, const char* unit)
{
    const double length = RoundLength(most);
    return {length / perPixel, QString::number(length, 'f', 0) + QLatin1Char(' ') + QLatin1String(unit)};
}

} // namespace

ScaleMark MilesMark(const MapView& view, double mostPixels)
{
    const double perPixel = MetresPerPixel(view) / kMetresPerMile;
    if (perPixel * mostPixels >= 1)
        return Mark(perPixel * mostPixels, perPixel, "mi");
    const double feet = MetresPerPixel(view) / kMetresPerFoot;
    return Mark(feet * mostPixels, feet, "ft");
}

ScaleMark KilometresMark(const MapView& view, double mostPixels)
{
    const double metres = MetresPerPixel(view), kilometres = metres / 1000;
    if (kilometres * mostPixels >= 1)
        return Mark(kilometres * mostPixels, kilometres, "km");
    return Mark(metres * mostPixels, metres, "m");
}

QRectF ScaleBarRect(const MapView& view)
{
    const double height = 34;
    return {kMargin - 4, view.height - kMargin - height + 4, kMostPixels + 8, height};
}

// Miles stand on the line, kilometres hang below it.
void PaintScaleBar(QPainter& painter, const MapView& view, const MapLook& look)
{
    const ScaleMark miles = MilesMark(view, kMostPixels), kilometres = KilometresMark(view, kMostPixels);
    const QRectF rect = ScaleBarRect(view);
    const double left = std::floor(rect.left()) + 4.5, middle = std::floor(rect.center().y()) + 0.5;
    const double longer = std::round(std::max(miles.pixels, kilometres.pixels));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor plate = look.plate;
    plate.setAlpha(200);
    painter.setBrush(plate);
    painter.drawRoundedRect(rect.adjusted(0, 0, longer + 8 - rect.width(), 0), 4, 4);
    painter.setPen(QPen(look.plateText, 1));
    painter.drawLine(QPointF(left, middle), QPointF(left + longer, middle));
    painter.drawLine(QPointF(left, middle - 6), QPointF(left, middle + 6));
    const auto tick = [&](const ScaleMark& mark, double towards) {
        const double x = left + std::round(mark.pixels);
        painter.drawLine(QPointF(x, middle), QPointF(x, middle + towards));
    };
    tick(miles, -6);
    tick(kilometres, 6);
    painter.setFont(look.smallFont);
    painter.drawText(QRectF(left + 4, middle - 15, 200, 14), Qt::AlignLeft | Qt::AlignVCenter, miles.text);
    painter.drawText(QRectF(left + 4, middle + 1, 200, 14), Qt::AlignLeft | Qt::AlignVCenter, kilometres.text);
    painter.restore();
}

} // namespace ruvenmark
