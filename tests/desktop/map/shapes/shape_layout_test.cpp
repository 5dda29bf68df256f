#include "desktop/map/shapes/shape_layout.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace ruvenmark {
namespace {

ShapeData Line(GeoPoint from, GeoPoint to)
{
    ShapeData line;
    line.from = from;
    line.to = to;
    return line;
}

ShapeData Circle(GeoPoint centre, double miles)
{
    ShapeData circle;
    circle.kind = ShapeData::Kind::Circle;
    circle.from = circle.to = centre;
    circle.width = circle.height = miles;
    return circle;
}

class ShapeLayoutTest : public testing::Test {
protected:
    const std::vector<LineItem>& Lines(const MapView& view)
    {
        layout.Update(shapes, ViewFrame(view));
        return layout.Lines();
    }

    SlotPool<ShapeData> shapes;
    ShapeLayout layout;
};

TEST_F(ShapeLayoutTest, CircleHasItsRadiusEverywhereOnTheEarth)
{
    const GeoPoint centre{60, 20};
    const MapView view{centre, 5, 800, 600};
    shapes.Add(Circle(centre, 300));
    layout.Update(shapes, ViewFrame(view));
    ASSERT_EQ(layout.Circles().size(), 1U);
    const QPolygonF& outline = layout.Circles()[0].outline;
    EXPECT_LT(QLineF(outline.first(), outline.last()).length(), 1e-6);
    for (const QPointF at : outline)
        EXPECT_NEAR(GreatCircleMiles(centre, FromPixel(view, {at.x(), at.y()})), 300, 0.01);
    const double north = 300 - outline.boundingRect().top(), south = outline.boundingRect().bottom() - 300;
    EXPECT_GT(north, south * 1.05) << "on this projection the northern half is the larger one";
}

TEST_F(ShapeLayoutTest, ShapesOutOfViewOrHiddenAreLeftOut)
{
    shapes.Add(Circle({-30, 100}, 10));
    shapes.Add(Line({10, 10}, {11, 11}));
    shapes.Find(shapes.Add(Line({40, -90}, {40.5, -90})))->bVisible = false;
    const SlotRef seen = shapes.Add(Line({40, -90}, {40.5, -90}));
    const auto& lines = Lines({{40, -90}, 8, 800, 600});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].slot, seen.slot);
    EXPECT_TRUE(layout.Circles().empty());
}

TEST_F(ShapeLayoutTest, LineCrossesTheDateLineTheShortWayAndIsCutToTheView)
{
    const MapView view{{0, 180}, 6, 800, 600};
    for (const double from : {179.0, 100.0}) {
        ShapeData line = Line({0, from}, {0, -from});
        line.bBeginArrowhead = line.bEndArrowhead = true;
        shapes.Add(line);
    }
    const auto& lines = Lines(view);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NEAR(lines[0].line.length(), view.WorldPixels() / 180, 0.01);
    EXPECT_TRUE(lines[0].bBeginArrow && lines[0].bEndArrow);
    EXPECT_LT(lines[1].line.length(), 1000);
    EXPECT_FALSE(lines[1].bBeginArrow || lines[1].bEndArrow) << "its ends lie elsewhere";
}

// Trails must not be torn, nor circles missing, where markers stand: in each copy of the world that is seen.
TEST_F(ShapeLayoutTest, ShapesStandInEachCopyOfTheWorld)
{
    const MapView view{{20, 60}, 1.4, 1280, 600}; // Nearly two worlds wide.
    ASSERT_LT(view.WorldPixels(), 700);
    for (int lon = -150; lon < -80; lon += 5)
        shapes.Add(Line({40, lon + 0.0}, {40, lon + 5.0}));
    shapes.Add(Circle({20, -115}, 800));
    shapes.Add(Circle({88, 10}, 300));
    Lines(view);
    const std::uint32_t circle = 14;
    std::vector<int> times(shapes.SlotCount());
    QRectF polar;
    for (const LineItem& item : layout.Lines())
        ++times[item.slot];
    for (const CircleItem& item : layout.Circles()) {
        ++times[item.slot];
        polar |= item.slot > circle ? item.outline.boundingRect() : QRectF();
    }
    for (std::uint32_t slot = 0; slot <= circle; ++slot)
        EXPECT_EQ(times[slot], 2) << slot;
    EXPECT_LE(polar.left(), 0);
    EXPECT_GE(polar.right(), view.width);
}

TEST_F(ShapeLayoutTest, ALongLineIsSeenAtItsFarEndToo)
{
    shapes.Add(Line({40, -100}, {40, 79}));
    for (const double lon : {-100, 79, 100}) // Beyond the last one lies half the world without it.
        EXPECT_EQ(Lines({{40, lon}, 3, 800, 600}).size(), 1U) << lon;
}

TEST_F(ShapeLayoutTest, ALongTrailOfSmallStepsIsSeenAtAnyZoom)
{
    const MapView view{{40, -90}, 5, 800, 600};
    for (int i = 0; i < 3000; ++i)
        shapes.Add(Line({40, -91 + i * 0.001}, {40, -91 + (i + 1) * 0.001}));
    const double pixels = view.WorldPixels() * 3 / 360;
    EXPECT_NEAR(static_cast<double>(Lines(view).size()), pixels / 3, 2);
}

TEST_F(ShapeLayoutTest, AReusedSlotIsProjectedAnew)
{
    const MapView view{{40, -90}, 6, 800, 600};
    const SlotRef first = shapes.Add(Line({40, -90}, {41, -90}));
    Lines(view);
    shapes.Remove(first);
    shapes.Add(Line({40, -90}, {40, -89}));
    ASSERT_EQ(Lines(view).size(), 1U);
    EXPECT_NEAR(layout.Lines()[0].line.dy(), 0, 1e-6);
}

} // namespace
} // namespace ruvenmark
