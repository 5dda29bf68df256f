#include "desktop/map/scene/scale_bar.h"
#include "desktop/map/view/view_moves.h"
#include "platform/map_model.h"

#include <gtest/gtest.h>

#include <cmath>

namespace ruvenmark {
namespace {

TEST(ViewMoves, NothingBesideTheWorldIsShown)
{
    const QSize window(1920, 1080);
    const ViewTarget out = WithinWorld({{0.5, 0.1}, -3}, window);
    EXPECT_NEAR(kTileSize * std::exp2(out.zoom), 1080, 0.01);
    EXPECT_NEAR(out.centre.y, 0.5, 1e-9);
    const ViewTarget north = WithinWorld({{1.25, -1}, 6}, window);
    EXPECT_NEAR(north.centre.y, 540 / (kTileSize * 64), 1e-9);
    EXPECT_NEAR(north.centre.x, 0.25, 1e-9) << "round the world";
    EXPECT_EQ(WithinWorld({{0.5, 0.5}, 40}, window).zoom, kMaxZoom);
}

// As long as the measured distance between the two ends would be.
TEST(ScaleBar, MarksAreRoundAndAsLongAsTheySay)
{
    const MapView view{{0, 0}, 8, 800, 600};
    const ScaleMark kilometres = KilometresMark(view, 120), miles = MilesMark(view, 120);
    EXPECT_EQ(kilometres.text, "50 km");
    EXPECT_NEAR(kilometres.pixels, 50 / (40030.17 / (256 * 256)), 0.01);
    EXPECT_EQ(miles.text, "20 mi");
    EXPECT_NEAR(GreatCircleMiles(FromPixel(view, {400, 300}), FromPixel(view, {400 + miles.pixels, 300})), 20, 1e-6);
    EXPECT_EQ(KilometresMark({{60, 0}, 19, 800, 600}, 120).text, "10 m");
    EXPECT_EQ(MilesMark({{60, 0}, 19, 800, 600}, 120).text, "50 ft");
}

} // namespace
} // namespace ruvenmark
