#include "outgoing/my_station.h"
#include "support/test_program.h"
#include "ui/station_tree_commands.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {
namespace {

using Texts = std::vector<std::string>;

void Set(TestProgram& program, Setting setting, std::string_view text)
{
    SetSetting(program.main.Settings, setting, text);
}

// The branches stand in any case; what hangs under them and their images need a station that is defined.
TEST(MyStation, ShowsWhatIsSet)
{
    TestProgram program;
    EXPECT_EQ(program.Image("MyPosition"), "Position");
    EXPECT_EQ(program.ChildTexts("MyPosition"), Texts{});
    Set(program, Setting::Call, "N0CALL");
    Set(program, Setting::Lat, "37.5");
    Set(program, Setting::Lon, "-122.25");
    Set(program, Setting::Directivity, "0");
    Set(program, Setting::Comment, "hello");
    AddMyStationNode(program.main);
    EXPECT_EQ(program.Image("MyPosition"), "Station");
    EXPECT_EQ(program.ChildTexts("MyPosition"),
              (Texts{"Lat: 37.5°", "Lon: -122.25°", "Directivity: Omni", "Path: WIDE2-2", "hello"}));
    EXPECT_EQ(program.Image("MyPositionLat:"), "Parallel");
    EXPECT_FALSE(program.Node("MyPositionLat:")->IsBold());
    EXPECT_EQ(program.Image("MyWeather"), "Letterw");
    for (const auto& [setting, text] :
         {std::pair(Setting::WindDir, "220"), std::pair(Setting::WindSpeed, "4"), std::pair(Setting::Gust, "5"),
          std::pair(Setting::Temperature, "77"), std::pair(Setting::Humidity, "50")})
        Set(program, setting, text);
    UpdateMyWeatherNode(program.main);
    EXPECT_EQ(program.Image("MyWeather"), "Weather");
    EXPECT_EQ(program.ChildTexts("MyWeather"), (Texts{"Wind Direction: 220°", "Wind Speed: 4 mph", "Gust: 5 mph",
                                                      "Temperature: 77°F", "Humidity: 50%"}));
}

TEST(MyStation, UpdatesInPlaceAndReplacesTheComment)
{
    TestProgram program;
    Set(program, Setting::Call, "N0CALL");
    Set(program, Setting::Lat, "1");
    Set(program, Setting::Lon, "2");
    Set(program, Setting::Comment, "old");
    AddMyStationNode(program.main);
    const TreeNode* lat = program.Node("MyPositionLat:");
    Set(program, Setting::Lat, "3");
    Set(program, Setting::Alt, "9");
    Set(program, Setting::Comment, "Lat:"); // The key of another row.
    UpdateMyPositionNode(program.main);
    EXPECT_EQ(program.Node("MyPositionLat:"), lat);
    EXPECT_EQ(program.ChildTexts("MyPosition"),
              (Texts{"Lat: 3°", "Lon: 2°", "Path: WIDE2-2", "Altitude: 9 feet", "Lat:"}));
    Set(program, Setting::Lat, "");
    UpdateMyPositionNode(program.main);
    EXPECT_EQ(program.ChildTexts("MyPosition"), Texts{});
}

// A circle that shows must not go on telling the range of another antenna, and its menu must be within reach.
TEST(MyStation, WorksOutTheRangeAndRedrawsIt)
{
    TestProgram program;
    for (const auto& [setting, text] :
         {std::pair(Setting::Call, "N0CALL"), std::pair(Setting::Lat, "1"), std::pair(Setting::Lon, "2"),
          std::pair(Setting::Power, "25"), std::pair(Setting::Height, "40"), std::pair(Setting::Gain, "3")})
        Set(program, setting, text);
    AddMyStationNode(program.main);
    const double range = program.main.map.MyRange;
    EXPECT_GT(range, 0);
    EXPECT_FALSE(program.main.map.MyRangeCircle);
    const auto popup = tvStationList_MouseUp(program.main, kRightButton, program.Node("MyPositionPower:"));
    ASSERT_TRUE(popup);
    EXPECT_TRUE(FindState(popup->items, MenuEntry::mnuShowMyRange)->bEnabled);
    RunMenuEntry(program.main, MenuEntry::mnuShowMyRange);
    const auto width = [&] {
        const auto& shapes = program.TheMap().Shapes();
        for (std::size_t slot = 0; slot < shapes.SlotCount(); ++slot)
            if (shapes.At(slot))
                return shapes.At(slot)->width;
        return 0.0;
    };
    EXPECT_EQ(width(), range);
    Set(program, Setting::Height, "160");
    AddMyStationNode(program.main);
    EXPECT_EQ(width(), program.main.map.MyRange);
    EXPECT_GT(width(), range);
}

} // namespace
} // namespace ruvenmark
