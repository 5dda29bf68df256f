#include "desktop/map/base_map_painter.h"
#include "world_map.h"

#include <QBuffer>
#include <QPdfWriter>

#include <gtest/gtest.h>

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

    BaseMap map = BaseMap::Open(WorldMapPath());
};

TEST_F(BaseMapPainterTest, LandAndWaterAreWhereTheyBelong)
{
    EXPECT_TRUE(IsLand(38.51, -98.52));                       // Kansas
    EXPECT_FALSE(IsLand(30, -40));                            // Atlantic
    EXPECT_FALSE(IsLand(47.4, -87.3));                        // Lake Superior
    EXPECT_TRUE(IsLand(48.0, -88.9));                         // Isle Royale, an island in it
    EXPECT_TRUE(IsLand(54.2, -4.55));                         // Isle of Man
    EXPECT_TRUE(IsLand(40.783, -73.965));                     // Manhattan
    EXPECT_FALSE(IsLand(40.783, -74.0));                      // Hudson beside it
    EXPECT_FALSE(IsLand(40.66, -74.045));                     // Upper Bay
    EXPECT_FALSE(IsLand(42, 51));                             // Caspian Sea
    EXPECT_TRUE(IsLand(-80, 100));                            // Antarctica
    EXPECT_TRUE(IsLand(67.2, 179.6) && IsLand(67.2, -179.6)); // Chukotka, both sides of the date line
    for (const double zoom : {1.5, 3.9, 5.2, 6.8, 8.4}) {     // Each level of detail
        EXPECT_TRUE(IsLand(38.9, -98.1, zoom)) << zoom;
        EXPECT_FALSE(IsLand(30, -40, zoom)) << zoom;
        EXPECT_FALSE(IsLand(47.4, -87.3, zoom)) << zoom;
    }
}

TEST_F(BaseMapPainterTest, NoSeamsInsideOneSurface)
{
    struct Surface {
        GeoPoint centre;
        bool isLand;
    };
    for (const Surface& surface : {Surface{{-81, 60}, true}, Surface{{-81, 178.5}, true}, Surface{{10, -140}, false}}) {
        for (const double zoom : {4.0, 5.37, 7.9}) {
            for (const double ratio : {1.0, 1.25, 2.0}) {
                const BaseMapPalette palette = PaletteFor(MapStyle::Data, false);
                const QRgb expected = (surface.isLand ? palette.land : palette.water).rgb();
                const QImage image = PaintGround(map, FrameAt(surface.centre, zoom, 300, 200), MapStyle::Data, ratio);
                std::size_t wrong = 0;
                for (int y = 0; y < image.height(); ++y)
                    for (int x = 0; x < image.width(); ++x)
                        wrong += image.pixel(x, y) != expected ? 1 : 0;
                // Islands of the ocean and lakes of the ice may show; a seam would be some hundred pixels.
                EXPECT_LT(wrong, 120U) << surface.centre.lon << " zoom " << zoom << " ratio " << ratio;
            }
        }
    }
}

TEST_F(BaseMapPainterTest, NeighbouringPiecesFitTogether)
{
    for (const GeoPoint centre : {GeoPoint{60.2, 5.4}, GeoPoint{-17, 179.93}, GeoPoint{46.9, 8.2}}) {
        for (const MapStyle style : {MapStyle::Road, MapStyle::Terrain, MapStyle::Political}) {
            const ViewFrame whole = FrameAt(centre, 6.3, 300, 130);
            const QImage expected = PaintGround(map, whole, style);
            QImage joined(expected.size(), QImage::Format_RGB32);
            QPainter painter(&joined);
            for (int part = 0; part < 3; ++part) {
                ViewFrame piece = whole;
                piece.left += part * 100 / whole.world;
                piece.width = 100;
                painter.drawImage(part * 100, 0, PaintGround(map, piece, style));
            }
            painter.end();
            EXPECT_LT(DifferentPixels(expected, joined), 20U) << centre.lon << " style " << static_cast<int>(style);
        }
    }
}

TEST_F(BaseMapPainterTest, TheWorldRepeatsSideways)
{
    const ViewFrame frame = FrameAt({20, 180}, 1, 1024, 400);
    const QImage image = PaintGround(map, frame, MapStyle::Political);
    EXPECT_LT(DifferentPixels(image.copy(0, 0, 512, 400), image.copy(512, 0, 512, 400)), 20U);
}

TEST_F(BaseMapPainterTest, EveryStyleLooksDifferent)
{
    const ViewFrame frame = FrameAt({47, 9}, 5.5, 200, 150);
    const QImage road = PaintGround(map, frame, MapStyle::Road);
    for (const MapStyle style : {MapStyle::Data, MapStyle::Terrain, MapStyle::Political})
        EXPECT_GT(DifferentPixels(road, PaintGround(map, frame, style)), 2000U) << static_cast<int>(style);
    EXPECT_EQ(DifferentPixels(road, PaintGround(map, frame, MapStyle::RoadAndData)), 0U);
}

TEST_F(BaseMapPainterTest, PaintsVectorsForPrinters)
{
    QBuffer file;
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    {
        QPdfWriter writer(&file);
        writer.setResolution(96);
        QPainter painter(&writer);
        const ViewFrame frame = FrameAt({51, 0}, 6, 400, 300);
        BaseMapPainter(map).Paint(painter, {frame.left, frame.top, frame.world, 400, 300, 1}, MapStyle::Political,
                                  false);
    }
    EXPECT_GT(file.size(), 10000);
    EXPECT_FALSE(file.data().contains("/Subtype /Image"));
}

} // namespace
} // namespace ruvenmark
