#include "outgoing/my_station.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ruvenmark {
namespace {

using Texts = std::vector<std::string>;

// The branches stand in any case; what hangs under them and their images need a station that is defined.
TEST(MyStation, ShowsWhatIsSet)
{
    TestProgram program;
    EXPECT_EQ(program.Image("MyPosition"), "Position");
    EXPECT_EQ(program.ChildTexts("MyPosition"), Texts{});
    program.Set("Call=N0CALL Lat=37.5 Lon=-122.25 Directivity=0 Comment=hello");
    AddMyStationNode(program.main);
    EXPECT_EQ(program.Image("MyPosition"), "Station");
    EXPECT_EQ(program.ChildTexts("MyPosition"),
              (Texts{"Lat: 37.5°", "Lon: -122.25°", "Directivity: Omni", "Path: WIDE2-2", "hello"}));
    EXPECT_EQ(program.Image("MyPositionLat:"), "Parallel");
    EXPECT_FALSE(program.Node("MyPositionLat:")->IsBold());
    EXPECT_EQ(program.Image("MyWeather"), "Letterw");
    program.Set("WindDir=220 WindSpeed=4 Gust=5 Temperature=77 Humidity=50");
    UpdateMyWeatherNode(program.main);
    EXPECT_EQ(program.Image("MyWeather"), "Weather");
    EXPECT_EQ(program.ChildTexts("MyWeather"), (Texts{"Wind Direction: 220°", "Wind Speed: 4 mph", "Gust: 5 mph",
                                                      "Temperature: 77°F", "Humidity: 50%"}));
}

TEST(MyStation, UpdatesInPlaceAndReplacesTheComment)
{
    TestProgram program;
    program.Set("Call=N0CALL Lat=1 Lon=2 Comment=old");
    AddMyStationNode(program.main);
    const TreeNode* lat = program.Node("MyPositionLat:");
    program.Set("Lat=3 Alt=9 Comment=Lat:"); // The key of another row.
    UpdateMyPositionNode(program.main);
    EXPECT_EQ(program.Node("MyPositionLat:"), lat);
    EXPECT_EQ(program.ChildTexts("MyPosition"),
              (Texts{"Lat: 3°", "Lon: 2°", "Path: WIDE2-2", "Altitude: 9 feet", "Lat:"}));
    program.Set("Lat=");
    UpdateMyPositionNode(program.main);
    EXPECT_EQ(program.ChildTexts("MyPosition"), Texts{});
}

// A circle must not go on telling the range of another antenna.
TEST(MyStation, WorksOutTheRangeAnew)
{
    TestProgram program;
    program.Set("Call=N0CALL Lat=1 Lon=2 Power=25 Height=40 Gain=3");
    AddMyStationNode(program.main);
    const double range = program.main.map.MyRange;
    EXPECT_GT(range, 0);
    program.Set("Height=160");
    AddMyStationNode(program.main);
    EXPECT_GT(program.main.map.MyRange, range);
}

} // namespace
} // namespace ruvenmark
