#include "desktop/map/base_map/world_map.h"
#include "desktop/map/labels/station_label_picture.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

// A halo that is missing, clipped, shifted against its letters or of the wrong width at some screens' ratios would let
// names sink into the ground; printers, which get curves, show what is meant.
TEST(StationLabelPictureTest, ANameIsAsItsCurves)
{
    const QString name = QStringLiteral("QW8jg-15");
    for (const bool bDark : {false, true}) {
        const MapLook look(QPalette(Qt::white), QGuiApplication::font(), 2, bDark);
        const QFontMetricsF metrics(look.nameFont);
        const QSizeF size(std::ceil(metrics.horizontalAdvance(name)) + 2 * kNameHalo, std::ceil(metrics.height()));
        const QColor ground = bDark ? Qt::darkGreen : Qt::red; // Neither that of letters nor of the halo.
        for (const qreal ratio : {1.0, 1.25, 2.0}) {
            QImage kept((size * ratio).toSize(), QImage::Format_RGB32);
            kept.setDevicePixelRatio(ratio);
            kept.fill(ground);
            QImage curves = kept;
            QPainter(&kept).drawPixmap(QPointF(), NamePicture(look, name, size, ratio));
            QPainter onCurves(&curves);
            PaintName(onCurves, look, name, QRectF(QPointF(), size));
            onCurves.end();
            const auto pixels = static_cast<std::size_t>(kept.width() * kept.height());
            const auto differs = [&](int x, int y) {
                const QRgb a = kept.pixel(x, y), b = curves.pixel(x, y);
                return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) > 120;
            };
            const auto isGround = [&](int x, int y) { return kept.pixel(x, y) == ground.rgb(); };
            EXPECT_LT(CountPixels(kept, differs), pixels / 25) << ratio << bDark;
            EXPECT_GT(CountPixels(kept, isGround), pixels / 10) << ratio << bDark << ": a halo, no plate";
        }
    }
}

} // namespace
} // namespace ruvenmark
