#include "desktop/map/markers/marker_layout.h"

#include <gtest/gtest.h>

#include <numeric>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

constexpr MapView kView{{40, -90}, 6, 800, 600};

PinPoint PointAt(const MapView& view, double x, double y, bool bBalloon = false)
{
    const MercatorPoint at = ToMercator(FromPixel(view, {x, y}));
    constexpr double kUnits = 4294967296.0;
    return {static_cast<std::uint32_t>(at.x * kUnits), static_cast<std::uint32_t>(at.y * kUnits), 1, true, bBalloon};
}

struct MarkerLayoutTest : testing::Test {
    void LayOut(const MapView& view = kView, std::optional<std::uint32_t> selected = {})
    {
        layout.Update(points, ViewFrame(view), selected);
    }

    std::vector<PinPoint> points;
    MarkerLayout layout;
};

TEST_F(MarkerLayoutTest, EveryMarkerInViewCountsOnceAndPicturesAreBounded)
{
    for (int i = 0; i < 200000; ++i)
        points.push_back(PointAt(kView, i * 37 % 800, (i * 91 / 7) % 600));
    points[500].bLive = false;
    LayOut();
    const auto& items = layout.Items();
    EXPECT_EQ(
        std::accumulate(items.begin(), items.end(), 0U, [](auto sum, const auto& item) { return sum + item.count; }),
        199999U);
    constexpr std::size_t kSquares =
        (std::size_t{800} / MarkerLayout::kSquare + 2) * (std::size_t{600} / MarkerLayout::kSquare + 2);
    EXPECT_LE(items.size(), kSquares * MarkerLayout::kMostInSquare);
}

TEST_F(MarkerLayoutTest, MarkersThatHideEachOtherAreOneAndOthersStayApart)
{
    points = {PointAt(kView, 100, 100), PointAt(kView, 101, 102), PointAt(kView, 300, 100), PointAt(kView, 310, 100)};
    LayOut();
    ASSERT_EQ(layout.Items().size(), 3U);
    EXPECT_EQ(layout.Items()[0].slot, 1U) << "the newest stands for both";
    EXPECT_EQ(layout.Items()[0].count, 2U);
    EXPECT_EQ(layout.Members(points, layout.Items()[0]), (std::vector<std::uint32_t>{1, 0}));
    EXPECT_NEAR(layout.Items()[1].at.x(), 300, 0.1);
}

TEST_F(MarkerLayoutTest, ANamedMarkerStandsForItsGroupAndTheSelectedOneForItself)
{
    for (int i = 0; i < 20; ++i)
        points.push_back(PointAt(kView, 100, 100, i == 4));
    LayOut();
    ASSERT_EQ(layout.Items().size(), 1U);
    EXPECT_EQ(layout.Items()[0].slot, 4U);
    LayOut(kView, 11);
    ASSERT_EQ(layout.Items().size(), 2U);
    EXPECT_EQ(layout.Items().back().slot, 11U);
    EXPECT_EQ(layout.Items().back().count, 1U);
    EXPECT_EQ(layout.Items().front().count, 19U);
    EXPECT_EQ(layout.Members(points, layout.Items().front()).size(), 19U);
}

// One that is heard just now would else hide in the faded picture of an old one.
TEST_F(MarkerLayoutTest, AHeapFadesWithTheYoungestOfIt)
{
    for (int i = 0; i < 20; ++i)
        points.push_back(PointAt(kView, 100, 100, i == 4)); // A crowded square ...
    points.push_back(PointAt(kView, 300, 100));
    points.push_back(PointAt(kView, 301, 100)); // ... and a pair.
    LayOut();
    ASSERT_EQ(layout.Items().size(), 2U);
    const auto faded = [&](std::uint32_t young) {
        layout.Fade(points, [&](std::uint32_t slot) { return slot != young; });
        return std::pair(layout.Items()[0].bFaded, layout.Items()[1].bFaded);
    };
    EXPECT_EQ(faded(0), std::pair(false, true));
    EXPECT_EQ(faded(4), std::pair(false, true));
    EXPECT_EQ(faded(20), std::pair(true, false));
    EXPECT_EQ(faded(99), std::pair(true, true));
}

TEST_F(MarkerLayoutTest, ViewAcrossTheDateLineAndWiderThanTheWorld)
{
    const MapView across{{0, 179.9}, 8, 800, 600};
    points = {PointAt(across, 390, 300), PointAt(across, 700, 300)};
    ASSERT_GT(points[0].x, points[1].x) << "they lie on both sides of the line";
    LayOut(across);
    ASSERT_EQ(layout.Items().size(), 2U);
    EXPECT_NEAR(layout.Items()[0].at.x(), 390, 0.1);
    EXPECT_NEAR(layout.Items()[1].at.x(), 700, 0.1);

    const MapView wide{{0, 0}, 1, 1500, 500}; // The world is 512 pixels wide.
    points = {PointAt(wide, 750, 250)};
    LayOut(wide);
    EXPECT_EQ(layout.Items().size(), 3U) << "one in each copy of the world";
}

} // namespace
} // namespace ruvenmark
