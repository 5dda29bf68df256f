#include "platform/geometry.h"

#include <gtest/gtest.h>

#include <tuple>

namespace ruvenmark {
namespace {

constexpr GeoPoint kLondon{51.5074, -0.1278}, kNewYork{40.7128, -74.0060};

TEST(Geometry, DistancesAreThoseOfKnownPlacesInBothDirections)
{
    const std::tuple<GeoPoint, GeoPoint, double> kMiles[] = {
        {kLondon, kNewYork, 3461.2},
        {{35.6762, 139.6503}, {37.7749, -122.4194}, 5141.6}, // Across the 180th meridian.
        {{90, 0}, {-90, 0}, 12436.8},
        {{48, 11}, {48.0003, 11.0003}, 0.02494},
        {{10, 180}, {10, -180}, 0}};
    for (const auto& [from, to, miles] : kMiles) {
        EXPECT_NEAR(GreatCircleMiles(from, to), miles, miles / 1000 + 1e-9);
        EXPECT_NEAR(GreatCircleMiles(to, from), miles, miles / 1000 + 1e-9);
    }
}

TEST(Geometry, BearingsAreClockwiseFromNorth)
{
    EXPECT_NEAR(InitialBearing({0, 0}, {1, 0}), 0, 1e-9);
    EXPECT_NEAR(InitialBearing({0, 179.5}, {0, -179.5}), 90, 1e-9);
    EXPECT_NEAR(InitialBearing(kLondon, kNewYork), 288.3, 0.1);
    EXPECT_LT(InitialBearing({0, 0}, {1, -1e-18}), 360); // A hair west of north.
}

} // namespace
} // namespace ruvenmark
