#include "desktop/map/base_map/world_map.h"
#include "desktop/map/shapes/shape_layer.h"
#include "platform/map_model.h"

#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace ruvenmark {
namespace {

constexpr int kWidth = 500, kHeight = 400;

ShapeData Step(GeoPoint from, std::mt19937& random)
{
    std::normal_distribution<double> step(0, 0.4);
    ShapeData line;
    line.from = from;
    line.to = {from.lat + step(random), from.lon + step(random)};
    line.weight = 1 + static_cast<std::int32_t>(random() % 3);
    line.bEndArrowhead = random() % 2 == 0;
    line.foreColor = random() % 2 == 0 ? 255 : kDefaultLineColor;
    return line;
}

// Enough lines for a picture to be kept, a view over them, and the same painted with and without one.
class ShapeLayerTest : public ::testing::Test {
protected:
    ShapeLayerTest()
    {
        AddLines(4 * ShapeLayer::kFew);
        QObject::connect(&layer, &ShapeLayer::Changed, [this] { bOther = true; });
    }

    void AddLines(std::size_t count)
    {
        std::uniform_real_distribution<double> lat(36, 44), lon(-96, -84);
        for (std::size_t i = 0; i < count; ++i)
            shapes.Add(Step({lat(random), lon(random)}, random));
    }

    // The view so many device pixels east and south of where it was at first, its corner on a device pixel of the
    // ground: there the kept picture lies as the lines do.
    ViewFrame FrameAt(double east, double south) const
    {
        const MapView view{{40, -90}, zoom, kWidth, kHeight};
        ViewFrame frame(view);
        const double pixels = frame.world * ratio;
        frame.left = (std::round(frame.left * pixels) + east) / pixels;
        frame.top = (std::round(frame.top * pixels) + south) / pixels;
        return frame;
    }

    template <typename Paint>
    QImage Picture(Paint paint) const
    {
        QImage picture(QSize(kWidth, kHeight) * ratio, QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        paint(painter);
        return picture;
    }

    // Painted by the layer that all frames share.
    QImage Kept(const ViewFrame& frame)
    {
        layout.Update(shapes, frame);
        bOther = false;
        return Picture([&](QPainter& painter) { layer.Paint(painter, layout, shapes, frame, look, ratio); });
    }

    // How many pixels of the kept picture are not as those of one that is painted at once. Blending twice rounds twice.
    std::size_t Differing(const ViewFrame& frame)
    {
        const QImage kept = Kept(frame);
        constexpr int kRounded = 24;
        return DifferentPixels(
            kept, Picture([&](QPainter& painter) { PaintShapes(painter, layout.InView(), frame, look); }), kRounded);
    }

    bool WaitForPicture()
    {
        return QTest::qWaitFor([&] { return bOther; }, 20000);
    }

    int RenewedPixels() const
    {
        int pixels = 0;
        for (const QRect& rect : layer.Renewed())
            pixels += rect.width() * rect.height();
        return pixels;
    }

    std::mt19937 random{5};
    double zoom = 7;
    qreal ratio = 1;
    SlotPool<ShapeData> shapes;
    ShapeLook look;
    ShapeLayout layout;
    ShapeLayer layer;
    bool bOther = false; // More can be painted than last time.
};

// Trails that are torn, doubled or left behind at the edges of what a move uncovers; heads of arrows that come and go.
TEST_F(ShapeLayerTest, AMovedPictureIsAsOnePaintedAtOnce)
{
    for (const qreal device : {1.0, 1.5, 2.0}) {
        ratio = device;
        Kept(FrameAt(0, 0));
        EXPECT_EQ(Differing(FrameAt(0, 0)), 0U) << device;
        double east = 0, south = 0;
        for (int i = 0; i < 5; ++i) {
            east += i % 3 * 15 - 7;
            south += i % 2 * 31 - 12;
            EXPECT_LT(Differing(FrameAt(east, south)), 20U) << device << " step " << i;
            EXPECT_LT(RenewedPixels(), kWidth * kHeight * device * device / 4);
        }
        EXPECT_LT(Differing(FrameAt(east + 3000, south)), 20U) << device; // Nothing of the old picture is left in view.
    }
}

// Of a view that is wider than the world no copy may be left behind by a move or a change.
TEST_F(ShapeLayerTest, APictureOfSeveralCopiesOfTheWorldIsKeptToo)
{
    zoom = 0.2;
    ASSERT_LT(FrameAt(0, 0).world, kWidth * 0.7);
    std::uniform_real_distribution<double> lat(-80, 80), lon(-180, 180);
    shapes.Clear();
    for (std::size_t i = 0; i < 6 * ShapeLayer::kFew; ++i)
        shapes.Add(Step({lat(random), lon(random)}, random));
    const SlotRef longest = shapes.Add(Step({50, -60}, random));
    shapes.Find(longest)->to = {55, 80};
    Kept(FrameAt(0, 0));
    ASSERT_GT(layout.Lines().size(), ShapeLayer::kFew);
    for (const double east : {31, 200, 190})
        EXPECT_LT(Differing(FrameAt(east, 5)), 20) << east;
    shapes.Find(longest)->foreColor = 0;
    EXPECT_LT(Differing(FrameAt(190, 5)), 20);
    EXPECT_LT(RenewedPixels(), kWidth * kHeight / 2);
}

// A trail that is hidden, removed or drawn anew must not wait for the next move of the map, nor repaint all the others.
TEST_F(ShapeLayerTest, AChangedLineIsRenewedWhereItIs)
{
    const ViewFrame frame = FrameAt(0, 0);
    Kept(frame);
    Kept(frame);
    const auto change = [&](const char* what, auto work) {
        work();
        EXPECT_EQ(Differing(frame), 0U) << what;
        EXPECT_GT(RenewedPixels(), 0) << what;
        EXPECT_LT(RenewedPixels(), kWidth * kHeight / 4) << what;
    };
    layout.Update(shapes, frame);
    const auto inside = [&](std::size_t nth) {
        std::size_t found = 0;
        for (const LineItem& item : layout.Lines())
            if (frame.Rect().contains(item.line.p1()) && item.line.length() > 20 && found++ == nth)
                return item.slot;
        return layout.Lines().front().slot;
    };
    const SlotRef hidden = shapes.RefAt(inside(0)), removed = shapes.RefAt(inside(1)),
                  recolored = shapes.RefAt(inside(2));
    change("hidden", [&] { shapes.Find(hidden)->bVisible = false; });
    change("removed", [&] { shapes.Remove(removed); });
    change("coloured", [&] { shapes.Find(recolored)->foreColor = 0; });
    change("heavier", [&] { shapes.Find(recolored)->weight = 8; });
    change("added in a slot that was free", [&] { shapes.Add(Step({40, -90}, random)); });
    look.selected = recolored.slot;
    look.highlight = Qt::blue;
    EXPECT_EQ(Differing(frame), 0U) << "selected";
    look.selected.reset();
    shapes.Clear();
    Kept(frame);
    EXPECT_EQ(Differing(frame), 0U) << "another map";
}

// So many that a frame has no time for all.
class ManyShapesTest : public ShapeLayerTest {
protected:
    ManyShapesTest() { AddLines(40000); }

    static double Inked(const QImage& picture) // Share of the pixels.
    {
        const auto isInked = [&](int x, int y) { return qGreen(picture.pixel(x, y)) < 250; };
        return static_cast<double>(CountPixels(picture, isInked)) / (picture.width() * picture.height());
    }
    void ExpectExactSoon(const ViewFrame& frame, const char* what)
    {
        EXPECT_TRUE(WaitForPicture()) << what;
        EXPECT_LT(Differing(frame), 20U) << what;
        EXPECT_TRUE(layer.IsReady()) << what;
    }
};

// Trails that vanish while the map is zoomed, or stay blurred, shifted or cut off once it rests.
TEST_F(ManyShapesTest, AfterAZoomTheLastPictureStandsInUntilTheNextIsMade)
{
    for (const qreal device : {1.0, 1.5}) {
        ratio = device;
        layer.Forget();
        zoom = 7;
        EXPECT_GT(Inked(Kept(FrameAt(0, 0))), 0.05) << "a draft";
        ASSERT_GT(layout.Lines().size(), ShapeLayer::kAtOnce);
        EXPECT_FALSE(layer.IsReady());
        EXPECT_TRUE(WaitForPicture()) << "to begin it";
        Kept(FrameAt(0, 0));
        ExpectExactSoon(FrameAt(0, 0), "at first");
        for (const double next : {7.2, 6.9, 6.0}) {
            zoom = next;
            const ViewFrame frame = FrameAt(0, 0);
            const QImage meanwhile = Kept(frame);
            EXPECT_FALSE(layer.IsReady()) << next;
            EXPECT_GT(Inked(meanwhile.copy(meanwhile.rect().adjusted(150, 120, -150, -120))), 0.1) << next;
            EXPECT_GT(Inked(meanwhile.copy(0, 0, 40, 40)), 0.02) << next << ": a corner that was not seen before";
            ExpectExactSoon(frame, "zoomed");
            EXPECT_LT(Differing(FrameAt(9, -5)), 20U) << next << ", moved then";
            EXPECT_TRUE(layer.IsReady()) << "a move is painted at once";
        }
        Kept(FrameAt(0, 200 * ratio));
        EXPECT_FALSE(layer.IsReady()) << "half of it is new";
        ExpectExactSoon(FrameAt(0, 200 * ratio), "far off");
    }
}

// A picture that comes late must neither cover what was painted meanwhile nor bring back what was removed meanwhile.
TEST_F(ManyShapesTest, WhatChangesWhileAPictureIsMadeIsNotLost)
{
    Kept(FrameAt(0, 0));
    EXPECT_TRUE(WaitForPicture()) << "to begin it";
    Kept(FrameAt(0, 0));
    for (std::uint32_t slot = 0; slot < 30; ++slot)
        shapes.Find(shapes.RefAt(slot))->bVisible = false;
    ExpectExactSoon(FrameAt(0, 0), "hidden while the first one was made");
    zoom = 7.1;
    Kept(FrameAt(0, 0));
    zoom = 10;
    Kept(FrameAt(0, 0));
    ASSERT_LT(layout.Lines().size(), ShapeLayer::kAtOnce);
    EXPECT_EQ(Differing(FrameAt(0, 0)), 0U) << "few enough to be painted";
    ExpectExactSoon(FrameAt(0, 0), "after the picture of another scale has come");
    zoom = 7.1;
    Kept(FrameAt(0, 0));
    layer.Forget();
    EXPECT_TRUE(WaitForPicture());
    shapes.Clear();
    AddLines(1);
    EXPECT_LT(Inked(Kept(FrameAt(0, 0))), 0.01) << "another map's";
}

// A picture without a clear pixel must not be kept as one that knows no clear ones: what a move uncovers would be
// black.
TEST_F(ManyShapesTest, APictureThatIsFullMovesOnToBareGround)
{
    for (std::uint32_t slot = 0; slot < shapes.SlotCount(); ++slot)
        shapes.Find(shapes.RefAt(slot))->weight = 13;
    const double edge = std::round(6.0 / 360 * FrameAt(0, 0).world); // Where the last lines begin.
    const auto frameAt = [&](double beyond) { return FrameAt(edge - kWidth / 2.0 + beyond, 0); };
    Kept(frameAt(-20));
    ASSERT_GT(layout.Lines().size(), ShapeLayer::kAtOnce);
    EXPECT_TRUE(WaitForPicture()) << "to begin it";
    Kept(frameAt(-20));
    EXPECT_TRUE(WaitForPicture());
    ASSERT_EQ(Inked(Kept(frameAt(-20))), 1);
    for (const double beyond : {20, 60, 100, 140})
        EXPECT_LT(Differing(frameAt(beyond)), 20U) << beyond;
    EXPECT_TRUE(layer.IsReady()) << "all painted at once";
    EXPECT_LT(Inked(Kept(frameAt(140))), 1);
}

} // namespace
} // namespace ruvenmark
