#include "desktop/map/shapes/shape_layout.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

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

TEST(ShapeLayout, CircleHasItsRadiusEverywhereOnTheEarth)
{
    const GeoPoint centre{60, 20};
    const MapView view{centre, 5, 800, 600};
    SlotPool<ShapeData> shapes;
    shapes.Add(Circle(centre, 300));
    ShapeLayout layout;
    layout.Update(shapes, ViewFrame(view));
    ASSERT_EQ(layout.Circles().size(), 1U);
    const QPolygonF& outline = layout.Circles()[0].outline;
    EXPECT_LT(QLineF(outline.first(), outline.last()).length(), 1e-6);
    for (const QPointF at : outline)
        EXPECT_NEAR(GreatCircleMiles(centre, FromPixel(view, {at.x(), at.y()})), 300, 0.01);
    EXPECT_GT(outline.boundingRect().height(), 0);
    EXPECT_GT(outline.boundingRect().center().y() + 1, 0);
    const double north = 300 - outline.boundingRect().top(), south = outline.boundingRect().bottom() - 300;
    EXPECT_GT(north, south * 1.05) << "on this projection the northern half is the larger one";
}

TEST(ShapeLayout, ShapesOutOfViewOrHiddenAreLeftOut)
{
    const MapView view{{40, -90}, 8, 800, 600};
    SlotPool<ShapeData> shapes;
    shapes.Add(Circle({40, -90}, 2000)); // The view lies inside; its rim is far away, but its box is not.
    shapes.Add(Circle({-30, 100}, 10));
    shapes.Add(Line({10, 10}, {11, 11}));
    ShapeData hidden = Line({40, -90}, {40.5, -90});
    hidden.bVisible = false;
    shapes.Add(hidden);
    const SlotRef seen = shapes.Add(Line({40, -90}, {40.5, -90}));
    ShapeLayout layout;
    layout.Update(shapes, ViewFrame(view));
    ASSERT_EQ(layout.Lines().size(), 1U);
    EXPECT_EQ(layout.Lines()[0].slot, seen.slot);
    EXPECT_LE(layout.Circles().size(), 1U);
}

TEST(ShapeLayout, LineCrossesTheDateLineTheShortWayAndIsCutToTheView)
{
    const MapView view{{0, 180}, 6, 800, 600};
    SlotPool<ShapeData> shapes;
    for (const double from : {179.0, 100.0}) {
        ShapeData line = Line({0, from}, {0, -from});
        line.bBeginArrowhead = line.bEndArrowhead = true;
        shapes.Add(line);
    }
    ShapeLayout layout;
    layout.Update(shapes, ViewFrame(view));
    ASSERT_EQ(layout.Lines().size(), 2U);
    EXPECT_NEAR(layout.Lines()[0].line.length(), view.WorldPixels() / 180, 0.01);
    EXPECT_TRUE(layout.Lines()[0].bBeginArrow && layout.Lines()[0].bEndArrow);
    EXPECT_LT(layout.Lines()[1].line.length(), 1000);
    EXPECT_FALSE(layout.Lines()[1].bBeginArrow || layout.Lines()[1].bEndArrow) << "its ends lie elsewhere";
}

TEST(ShapeLayout, ALongTrailOfSmallStepsIsSeenAtAnyZoom)
{
    const MapView view{{40, -90}, 5, 800, 600};
    SlotPool<ShapeData> shapes;
    for (int i = 0; i < 3000; ++i)
        shapes.Add(Line({40, -91 + i * 0.001}, {40, -91 + (i + 1) * 0.001}));
    ShapeLayout layout;
    layout.Update(shapes, ViewFrame(view));
    const double pixels = view.WorldPixels() * 3 / 360;
    EXPECT_NEAR(static_cast<double>(layout.Lines().size()), pixels / 3, 2);
}

TEST(ShapeLayout, AReusedSlotIsProjectedAnew)
{
    const MapView view{{40, -90}, 6, 800, 600};
    SlotPool<ShapeData> shapes;
    const SlotRef first = shapes.Add(Line({40, -90}, {41, -90}));
    ShapeLayout layout;
    layout.Update(shapes, ViewFrame(view));
    shapes.Remove(first);
    shapes.Add(Line({40, -90}, {40, -89}));
    layout.Update(shapes, ViewFrame(view));
    ASSERT_EQ(layout.Lines().size(), 1U);
    EXPECT_NEAR(layout.Lines()[0].line.dy(), 0, 1e-6);
}

} // namespace
} // namespace ruvenmark
