#include "desktop/map/tile_painter.h"
#include "world_map.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

class TilePainterTest : public testing::Test {
protected:
    QImage Paint(const ViewFrame& frame, bool wait, double ratio = 1)
    {
        QImage image(static_cast<int>(frame.width * ratio), static_cast<int>(frame.height * ratio),
                     QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        isWhole = tiles.Paint(painter, frame, {MapStyle::Road, false, ratio, wait});
        return image;
    }
    static std::size_t Unpainted(const QImage& image)
    {
        std::size_t count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == QColor(Qt::magenta).rgb() ? 1 : 0;
        return count;
    }

    BaseMap map = BaseMap::Open(WorldMapPath());
    TilePainter tiles{map};
    bool isWhole = false;
};

TEST_F(TilePainterTest, LooksAsPaintedAtOnce)
{
    for (const double ratio : {1.0, 2.0}) {
        for (const double zoom : {1.7, 5.0, 9.33}) {
            // On whole pixels, as the squares are.
            ViewFrame frame = FrameAt({40.7, -73.9}, zoom, 600, 400);
            const double pixels = frame.world * ratio;
            frame.left = std::round(frame.left * pixels) / pixels;
            frame.top = std::round(frame.top * pixels) / pixels;
            const QImage tiled = Paint(frame, true, ratio);
            EXPECT_TRUE(isWhole);
            const QImage whole = PaintGround(map, frame, MapStyle::Road, ratio);
            EXPECT_LT(DifferentPixels(tiled, whole), static_cast<std::size_t>(tiled.width() * tiled.height() / 500))
                << "zoom " << zoom << " ratio " << ratio;
        }
    }
}

TEST_F(TilePainterTest, CoversEveryPixelAcrossTheDateLine)
{
    for (const double zoom : {1.0, 2.3, 6.71})
        for (const double lon : {-180.0, 179.9, 0.0})
            EXPECT_EQ(Unpainted(Paint(FrameAt({52, lon}, zoom, 700, 300), true)), 0U) << zoom << ' ' << lon;
}

TEST_F(TilePainterTest, FillsInLaterAndShowsOlderScalesMeanwhile)
{
    const ViewFrame frame = FrameAt({46, 8}, 6, 700, 500);
    int changes = 0;
    QObject::connect(&tiles, &TilePainter::Changed, [&] { ++changes; });
    EXPECT_EQ(Unpainted(Paint(frame, false)), 0U);
    EXPECT_FALSE(isWhole);
    QElapsedTimer time;
    time.start();
    while (!isWhole && time.elapsed() < 20000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        Paint(frame, false);
    }
    EXPECT_TRUE(isWhole);
    EXPECT_GT(changes, 0);

    // Switzerland lies inland: from nearer, the land of the scale before shows at once.
    const QImage nearer = Paint(FrameAt({47, 8.5}, 7, 300, 200), false);
    EXPECT_GT(Difference(nearer.pixel(150, 100), PaletteFor(MapStyle::Road, false).water.rgb()), 40);
}

} // namespace
} // namespace ruvenmark
