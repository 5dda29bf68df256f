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

} // namespace
} // namespace ruvenmark
