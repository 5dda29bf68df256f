#include "desktop/map/labels/station_label_picture.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

QPointF BaseOf(const MapLook& look, const QRectF& rect)
{
    return {rect.left() + kNameHalo, std::round(rect.top() + QFontMetricsF(look.nameFont).ascent())};
}

void PaintLetters(QPainter& painter, const MapLook& look, const QString& text, QPointF base)
{
    painter.setFont(look.nameFont);
    painter.setPen(look.text);
    painter.drawText(base, text);
}

QImage Empty(QSizeF size, qreal ratio)
{
    QImage picture((size * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

// How far a picture is covered, 0 to 255, with room around it.
struct Cover {
    Cover(const QImage& picture, int room)
        : width(picture.width() + 2 * room), height(picture.height() + 2 * room),
          values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
    {
        for (int y = 0; y < picture.height(); ++y) {
            const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            std::transform(from, from + picture.width(), Row(y + room) + room,
                           [](QRgb pixel) { return static_cast<std::uint8_t>(qAlpha(pixel)); });
        }
    }
    std::uint8_t* Row(int y) { return values.data() + std::ptrdiff_t{y} * width; }

    int width, height;
    std::vector<std::uint8_t> values;
};

// Each pixel as the fullest one of those so near; the outermost ones count in part.
Cover Widened(Cover& cover, int reach, double radius)
{
    Cover wide = cover;
    for (int down = -reach; down <= reach; ++down) {
        for (int right = -reach; right <= reach; ++right) {
            const double share = std::clamp(radius + 1 - std::hypot(down, right), 0.0, 1.0);
            const auto part = static_cast<std::uint16_t>(std::lround(share * 256));
            if (part == 0)
                continue;
            for (int y = reach; y < cover.height - reach; ++y) {
                const std::uint8_t* from = cover.Row(y + down) + right;
                std::uint8_t* to = wide.Row(y);
                for (int x = reach; x < cover.width - reach; ++x)
                    to[x] = std::max(to[x], static_cast<std::uint8_t>(from[x] * part >> 8));
            }
        }
    }
    return wide;
}

// What lies around all that is drawn in the picture, so many device pixels wide. To stroke the outlines of letters
// takes many times as long.
QImage Halo(const QImage& letters, const QColor& color, double radius)
{
    const int reach = static_cast<int>(std::ceil(radius));
    Cover cover(letters, reach);
    Cover wide = Widened(cover, reach, radius);
    QImage halo(letters.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < halo.height(); ++y) {
        const std::uint8_t* from = wide.Row(y + reach) + reach;
        std::transform(from, from + halo.width(), reinterpret_cast<QRgb*>(halo.scanLine(y)), [&](std::uint8_t value) {
            return qPremultiply(qRgba(color.red(), color.green(), color.blue(), color.alpha() * value / 255));
        });
    }
    halo.setDevicePixelRatio(letters.devicePixelRatio());
    return halo;
}

} // namespace

void PaintName(QPainter& painter, const MapLook& look, const QString& text, const QRectF& rect)
{
    const QPointF base = BaseOf(look, rect);
    QPainterPath letters;
    letters.addText(base, look.nameFont, text);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(letters, QPen(look.halo, 2 * kNameHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    PaintLetters(painter, look, text, base);
}

void PaintBadge(QPainter& painter, const MapLook& look, const QString& text, const QRectF& rect)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.halo, 1));
    painter.setBrush(look.badge);
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), rect.height() / 2, rect.height() / 2);
    painter.setFont(look.badgeFont);
    painter.setPen(look.badgeText);
    painter.drawText(rect, Qt::AlignCenter, text);
}

QPixmap NamePicture(const MapLook& look, const QString& text, QSizeF size, qreal ratio)
{
    QImage letters = Empty(size, ratio);
    QPainter onLetters(&letters);
    onLetters.setRenderHint(QPainter::Antialiasing);
    PaintLetters(onLetters, look, text, BaseOf(look, QRectF(QPointF(), size)));
    onLetters.end();
    QImage picture = Halo(letters, look.halo, kNameHalo * ratio);
    QPainter(&picture).drawImage(QPointF(), letters);
    return QPixmap::fromImage(std::move(picture));
}

QPixmap BadgePicture(const MapLook& look, const QString& text, QSizeF size, qreal ratio)
{
    QImage picture = Empty(size, ratio);
    QPainter painter(&picture);
    PaintBadge(painter, look, text, QRectF(QPointF(), size));
    painter.end();
    return QPixmap::fromImage(std::move(picture));
}

} // namespace ruvenmark
