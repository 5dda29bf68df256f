#include "map/directions.h"
#include "map/pointer_tools.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <string>

namespace ruvenmark {
namespace {

TEST(Directions, TellDistanceAndBearingsOfTheGreatCircle)
{
    TestProgram program;
    EXPECT_EQ(DirectionsText(program.main), "");
    EXPECT_TRUE(SetDirectionsEnd(program.main, 0, "40.64, -73.78")); // New York to London: 3,442 miles, 51 degrees.
    EXPECT_TRUE(SetDirectionsEnd(program.main, 1, "51.47,-0.45"));
    const std::string text = DirectionsText(program.main);
    EXPECT_TRUE(text.starts_with("From: 40.64, -73.78\r\nTo: 51.47, -0.45\r\nDistance: 344")) << text;
    EXPECT_NE(text.find("Bearing: 51° (NE)"), std::string::npos) << text;
    EXPECT_NE(text.find("Back bearing: 288° (WNW)"), std::string::npos) << text;
}

TEST(Directions, EndsAreStationsMarkersOrPoints)
{
    TestProgram program;
    program.Hear(Channel::TCP, "N0CALL>APRS:!4000.00N/08000.00W>");
    for (const char* typed : {"N0CALL", " n0call ", "N0CALL(t)"}) {
        const auto end = ReadDirectionsEnd(program.main, typed);
        ASSERT_TRUE(end) << typed;
        EXPECT_EQ(DirectionsEndText(*end), "N0CALL(t)");
        EXPECT_EQ(end->point, (GeoPoint{40, -80}));
    }
    for (const char* typed : {"", "N0CAL", "91, 0"})
        EXPECT_FALSE(ReadDirectionsEnd(program.main, typed)) << typed;

    // A place comes after all else, and only by its whole name.
    const auto place = ReadDirectionsEnd(program.main, "springfield");
    ASSERT_TRUE(place);
    EXPECT_EQ(DirectionsEndText(*place), "Springfield");
    EXPECT_FALSE(ReadDirectionsEnd(program.main, "springf"));
    program.Position(Channel::TCP, "Springdale", 40, -80);
    EXPECT_EQ(DirectionsEndText(*ReadDirectionsEnd(program.main, "Springdale")), "Springdale(t)");

    // The old way must not stand beside a text that nobody knows.
    for (const char* typed : {"nobody", ""}) {
        EXPECT_TRUE(SetDirectionsEnd(program.main, 0, "n0call"));
        EXPECT_EQ(SetDirectionsEnd(program.main, 0, typed), *typed == 0);
        EXPECT_FALSE(program.main.map.directions[0]);
    }
}

} // namespace
} // namespace ruvenmark
