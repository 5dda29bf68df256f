#include "platform/geometry.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

constexpr GeoPoint kLondon{51.5074, -0.1278}, kNewYork{40.7128, -74.0060}, kTokyo{35.6762, 139.6503},
    kSanFrancisco{37.7749, -122.4194}, kSydney{-33.8688, 151.2093}, kSantiago{-33.4489, -70.6693};

TEST(Geometry, DistancesOfKnownCities)
{
    const auto expectMiles = [](GeoPoint from, GeoPoint to, double miles) {
        EXPECT_NEAR(GreatCircleMiles(from, to), miles, miles / 1000);
        EXPECT_NEAR(GreatCircleMiles(to, from), miles, miles / 1000);
    };
    expectMiles(kLondon, kNewYork, 3461.2);
    expectMiles(kTokyo, kSanFrancisco, 5141.6); // Across the 180th meridian.
    expectMiles(kSydney, kSantiago, 7050.5);
    expectMiles({90, 0}, {-90, 0}, 12436.8);
    expectMiles({48, 11}, {48.0003, 11.0003}, 0.02494);
    expectMiles({0, 179.9}, {0, -179.9}, 13.82);
    EXPECT_EQ(GreatCircleMiles(kLondon, kLondon), 0);
    EXPECT_EQ(GreatCircleMiles({10, 180}, {10, -180}), GreatCircleMiles({10, -180}, {10, 180}));
}

TEST(Geometry, BearingsAreClockwiseFromNorth)
{
    EXPECT_NEAR(InitialBearing({0, 0}, {1, 0}), 0, 1e-9);
    EXPECT_NEAR(InitialBearing({0, 0}, {0, 1}), 90, 1e-9);
    EXPECT_NEAR(InitialBearing({0, 0}, {-1, 0}), 180, 1e-9);
    EXPECT_NEAR(InitialBearing({0, 179.5}, {0, -179.5}), 90, 1e-9);
    EXPECT_NEAR(InitialBearing(kLondon, kNewYork), 288.3, 0.1);
    EXPECT_LT(InitialBearing({0, 0}, {1, -1e-18}), 360); // A hair west of north.
}

} // namespace
} // namespace ruvenmark
