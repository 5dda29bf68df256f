#include "map/directions.h"
#include "map/find.h"
#include "map/pointer_tools.h"
#include "map/selection.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using Texts = std::vector<std::string>;

class Finding : public testing::Test {
protected:
    Texts Names(std::string_view text, std::size_t limit = 20)
    {
        Texts names;
        for (const auto& place : Find(program.main, places, text, limit))
            names.push_back(place.name);
        return names;
    }

    TestProgram program;
    FakePlaces places;
};

TEST_F(Finding, StationsOfAllChannelsBeginningsFirst)
{
    program.Position(Channel::RF, "XN0CALL", 40, -80);
    program.Position(Channel::RF, "N0CALL", 40, -80);
    program.Position(Channel::TCP, "n0call-9", 41, -80);
    program.Hear(Channel::TCP, "N0CALL-5>APRS:>no position");
    program.Hear(Channel::FL, "N0CALL-7>APRS:!4000.00N/08000.00W>");
    EXPECT_EQ(Names("N0ca"), (Texts{"N0CALL(r)", "n0call-9(t)", "N0CALL-7(f)", "XN0CALL(r)"}));
    EXPECT_EQ(Names(" call-9 "), Texts{"n0call-9(t)"});
    EXPECT_EQ(Names("n0call-9(t)"), Texts{"n0call-9(t)"}); // As the marker is named.
    EXPECT_EQ(Names("N0ca", 2), (Texts{"N0CALL(r)", "n0call-9(t)"}));
    for (const char* nothing : {"  ", "(x)"})
        EXPECT_TRUE(Names(nothing).empty());
}

TEST_F(Finding, MarkersThatAreNoStationsButNoTrackPoints)
{
    program.main.Of(Channel::RF).Tracked.Set("N0CALL", "N0CALL");
    for (const double lat : {40.0, 41.0, 42.0})
        program.Position(Channel::RF, "N0CALL", lat, -80);
    Map& map = program.TheMap();
    map.AddPushpin(map.GetLocation(10, 20), "N0CALL(Club)");
    map.AddPushpin(map.GetLocation(10, 20), "Club house");
    EXPECT_EQ(Names("n0call"), (Texts{"N0CALL(r)", "N0CALL(Club)"}));
    EXPECT_EQ(Names("club"), (Texts{"Club house", "N0CALL(Club)"}));
}

TEST_F(Finding, NeitherStationsNorPlacesCrowdTheOthersOut)
{
    for (int i = 0; i < 30; ++i)
        program.Position(Channel::RF, "DEN" + std::to_string(i), 40, -80);
    places.names.assign(30, "Den town");
    const auto both = Names("den", 10);
    EXPECT_EQ(both.size(), 10U);
    EXPECT_EQ(std::count(both.begin(), both.end(), "Den town"), 5);
    places.names = {"Den Haag", "Paris"};
    EXPECT_EQ(Names("den", 10)[8], "DEN8(r)");
    EXPECT_EQ(Names("paris", 10), Texts{"Paris"});
}

TEST_F(Finding, SelectsNothingWhereTheStationIsGoneByThen)
{
    program.Position(Channel::TCP, "N0CALL", 40, -80);
    const auto found = Find(program.main, places, "n0call", 1).at(0);
    program.TheMap().SetView({0, 0}, 14);
    ClearChannelReports(program.main, Channel::TCP);
    GoToFound(program.main, found);
    EXPECT_EQ(program.TheMap().View().zoom, 14);
    EXPECT_EQ(KindOfSelection(program.main), SelectionKind::Nothing);
}

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

TEST(Directions, EndsAreStationsMarkersOrPlaces)
{
    TestProgram program;
    program.Position(Channel::TCP, "N0CALL", 40, -80);
    program.Position(Channel::TCP, "Springdale", 40, -80);
    const auto end = [&](const char* typed) {
        const auto found = ReadDirectionsEnd(program.main, typed);
        return found ? DirectionsEndText(*found) : "(none)";
    };
    for (const char* typed : {"N0CALL", " n0call ", "N0CALL(t)"})
        EXPECT_EQ(end(typed), "N0CALL(t)") << typed;
    EXPECT_EQ(ReadDirectionsEnd(program.main, "N0CALL")->point, (GeoPoint{40, -80}));
    EXPECT_EQ(end("Springdale"), "Springdale(t)"); // A place comes after all else, and only by its whole name.
    EXPECT_EQ(end("springfield"), "Springfield");
    for (const char* typed : {"", "N0CAL", "91, 0", "springf"})
        EXPECT_EQ(end(typed), "(none)") << typed;

    // The old way must not stand beside a text that nobody knows.
    for (const char* typed : {"nobody", ""}) {
        EXPECT_TRUE(SetDirectionsEnd(program.main, 0, "n0call"));
        EXPECT_EQ(SetDirectionsEnd(program.main, 0, typed), *typed == 0);
        EXPECT_FALSE(program.main.map.directions[0]);
    }
}

} // namespace
} // namespace ruvenmark
