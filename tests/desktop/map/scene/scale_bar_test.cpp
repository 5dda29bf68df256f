#include "desktop/map/scene/scale_bar.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

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
