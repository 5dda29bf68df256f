#include "desktop/map/base_map/base_map_painter.h"
#include "desktop/map/base_map/square_painter.h"
#include "desktop/map/base_map/world_map.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <map>

namespace ruvenmark {
namespace {

class BaseMapPainterTest : public testing::Test {
protected:
    bool IsLand(double lat, double lon, double zoom = 11)
    {
        const QImage image = PaintGround(map, FrameAt({lat, lon}, zoom, 9, 9), MapStyle::Road);
        const BaseMapPalette palette = PaletteFor(MapStyle::Road, false);
        const QRgb pixel = image.pixel(4, 4);
        const int land = Difference(pixel, palette.land.rgb()), water = Difference(pixel, palette.water.rgb());
        EXPECT_LT(std::min(land, water), 12) << lat << ' ' << lon;
        return land < water;
    }

    BaseMap map = BaseMap::Open(kWorldMapPath);
};

TEST_F(BaseMapPainterTest, LandAndWaterAreWhereTheyBelong)
{
    EXPECT_FALSE(IsLand(47.4, -87.3));                          // Lake Superior
    EXPECT_TRUE(IsLand(48.0, -88.9));                           // Isle Royale, an island in it
    EXPECT_TRUE(IsLand(40.783, -73.965));                       // Manhattan
    EXPECT_FALSE(IsLand(40.783, -74.0));                        // Hudson beside it
    EXPECT_FALSE(IsLand(42, 51));                               // Caspian Sea
    EXPECT_TRUE(IsLand(-80, 100));                              // Antarctica
    EXPECT_TRUE(IsLand(67.2, 179.6) && IsLand(67.2, -179.6));   // Chukotka, both sides of the date line
    for (const double zoom : {1.5, 3.9, 5.2, 6.8, 8.4, 11.0}) { // Each level of detail
        EXPECT_TRUE(IsLand(38.9, -98.1, zoom)) << zoom;
        EXPECT_FALSE(IsLand(30, -40, zoom)) << zoom;
    }
}

TEST_F(BaseMapPainterTest, NoSeamsInsideOneSurface)
{
    const BaseMapPalette palette = PaletteFor(MapStyle::Data, false);
    const auto land = palette.land.rgb(), water = palette.water.rgb();
    for (const auto& [centre, expected] :
         {std::pair{GeoPoint{-81, 60}, land}, {GeoPoint{-81, 178.5}, land}, {GeoPoint{10, -140}, water}}) {
        for (const double zoom : {4.0, 5.37, 7.9}) {
            for (const double ratio : {1.0, 1.25, 2.0}) {
                const QImage image = PaintGround(map, FrameAt(centre, zoom, 300, 200), MapStyle::Data, ratio);
                // Islands of the ocean and lakes of the ice may show; a seam would be some hundred pixels.
                EXPECT_LT(CountPixels(image, [&](int x, int y) { return image.pixel(x, y) != expected; }), 120U)
                    << centre.lon << " zoom " << zoom << " ratio " << ratio;
            }
        }
    }
}

TEST_F(BaseMapPainterTest, EveryStyleLooksDifferentAndRoadAndDataPaler)
{
    std::map<MapStyle, QImage> pictures;
    for (const MapStyleInfo& info : kMapStyles) {
        const QImage picture = PaintGround(map, FrameAt({47, 9}, 5.5, 200, 150), info.style);
        for (const auto& [style, other] : pictures)
            EXPECT_GT(DifferentPixels(picture, other), 2000U) << NumberOf(info.style) << NumberOf(style);
        pictures[info.style] = picture;
    }
    const QImage &road = pictures[MapStyle::Road], &pale = pictures[MapStyle::RoadAndData];
    EXPECT_EQ(CountPixels(road, [&](int x, int y) { return qGray(pale.pixel(x, y)) <= qGray(road.pixel(x, y)); }), 0U);
}

class SquarePainterTest : public testing::Test {
protected:
    QImage Paint(const ViewFrame& frame, bool wait, double ratio = 1, double origin = 0)
    {
        QImage image(static_cast<int>(frame.width * ratio), static_cast<int>(frame.height * ratio),
                     QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        painter.translate(origin / ratio, origin / ratio);
        isWhole = tiles.Paint(painter, frame, {MapStyle::Road, false, ratio, wait});
        return image;
    }
    static std::size_t Unpainted(const QImage& image)
    {
        return CountPixels(image, [&](int x, int y) { return image.pixel(x, y) == QColor(Qt::magenta).rgb(); });
    }

    BaseMap map = BaseMap::Open(kWorldMapPath);
    SquarePainter tiles{map};
    bool isWhole = false;
};

TEST_F(SquarePainterTest, LooksAsPaintedAtOnce)
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

TEST_F(SquarePainterTest, CoversEveryPixelAcrossTheDateLine)
{
    for (const double zoom : {1.0, 2.3, 6.71})
        for (const double lon : {-180.0, 179.9, 0.0})
            EXPECT_EQ(Unpainted(Paint(FrameAt({52, lon}, zoom, 700, 300), true)), 0U) << zoom << ' ' << lon;
}

TEST_F(SquarePainterTest, FillsInLaterAndShowsOlderScalesMeanwhile)
{
    const ViewFrame frame = FrameAt({46, 8}, 6, 700, 500);
    int changes = 0;
    QObject::connect(&tiles, &SquarePainter::Changed, [&] { ++changes; });
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

// In a window on a screen that is enlarged by one and a half the map's corner lies on half a pixel: a row between two
// squares that is not painted shows what was there before the map moved.
TEST_F(SquarePainterTest, CoversEveryPixelOfAPartThatBeginsOnHalfOne)
{
    for (const double lat : {52.0, 50.1}) {
        const QImage image = Paint(FrameAt({lat, 8}, 6, 500, 400), true, 1.5, 0.5);
        EXPECT_EQ(Unpainted(image.copy(image.rect().adjusted(1, 1, -1, -1))), 0U) << lat;
    }
}

} // namespace
} // namespace ruvenmark
