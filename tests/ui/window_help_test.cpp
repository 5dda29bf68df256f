// What the window does for whoever sits before it: the edit keys of the tree, first steps, files by their content.

#include "support/test_program.h"
#include "ui/first_steps.h"
#include "ui/menus.h"
#include "ui/opened_file.h"
#include "ui/tree_keys.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;

// Del in the tree must not take away the marker that was last clicked on the map, nor the other way round.
TEST(TreeKeys, TheEditCommandsActOnWhatHasTheFocus)
{
    TestProgram program;
    for (const char* call : {"N0CALL", "N1CALL"})
        program.Position(Channel::RF, call, 40, -90);
    SelectOnMap(program.main, *program.Marker("N1CALL(r)"));
    program.Select("RFPositionsN0CALL");
    program.main.window.bTreeFocus = true;
    RunMenuEntry(program.main, MenuEntry::mnuEditCopy);
    EXPECT_TRUE(program.desktop.clipboard.starts_with("N0CALL\r\nLat: 40°\r\nLon: -90°\r\n"));
    program.prompts.answers = {Answer::No, Answer::Yes};
    for (const std::size_t left : {2U, 1U}) {
        RunMenuEntry(program.main, MenuEntry::mnuEditDelete);
        EXPECT_EQ(program.ChildTexts("RFPositions").size(), left);
    }
    EXPECT_EQ(program.MarkerNames(), std::vector<std::string>{"N1CALL(r)"});
    EXPECT_EQ(program.prompts.questions.back(), "Are you sure you want to delete report for N0CALL?");

    program.Select("RFPositions");
    for (const MenuEntry entry : {MenuEntry::mnuEditDelete, MenuEntry::mnuEditCut}) // A folder is not deleted ...
        EXPECT_FALSE(StateOf(entry, {program.main, nullptr}).bEnabled);
    program.main.window.bTreeFocus = false;
    RunMenuEntry(program.main, MenuEntry::mnuEditDelete); // ... and the map's marker only by the map's keys.
    EXPECT_FALSE(program.Marker("N1CALL(r)").has_value());
}

TEST(TreeKeys, EnterShowsAStationOrOneOfItsFactsOnTheMap)
{
    TestProgram program;
    program.Position(Channel::RF, "N0CALL", 40, -90);
    const auto shows = [&](const char* key) {
        program.TheMap().SetView({0, 0}, 5);
        program.Select(key);
        return ShowSelectedNode(program.main) && program.TheMap().View().centre.lat > 39;
    };
    EXPECT_TRUE(shows("RFPositionsN0CALL") && shows("RFPositionsN0CALLLat"));
    EXPECT_FALSE(shows("RFPositions"));
}

TEST(FirstSteps, AreGoneWithTheFirstReport)
{
    TestProgram program;
    EXPECT_TRUE(WantsFirstSteps(program.main));
    program.Sink(Channel::RF).ReportStatus({"N0CALL", "APRS", "", kNoPosition, kNoPosition, "here"});
    EXPECT_FALSE(WantsFirstSteps(program.main));
    EXPECT_FALSE(HasPlacedStations(program.main));
    RunMenuEntry(program.main, MenuEntry::mnuZoomToStations); // Nowhere to go.
    program.Position(Channel::RF, "N1CALL", 48, 9);
    program.Position(Channel::RF, "N2CALL", 50, 11);
    RunMenuEntry(program.main, MenuEntry::mnuZoomToStations);
    EXPECT_NEAR(program.TheMap().View().centre.lat, 49, 0.1);
    EXPECT_NEAR(program.TheMap().View().centre.lon, 10, 0.1);
    EXPECT_GT(program.TheMap().View().zoom, 6);
}

TEST(OpenedFile, IsKnownByItsContent)
{
    TestProgram program;
    program.files.texts = {{"/a.log", "SQLite format 3\0 and more"s},
                           {"/b.mbtiles", "N0CALL>APRS:>here\r\n"},
                           {"/c.txt", R"( { "features": [], "type": "FeatureCollection" })"},
                           {"/d.ptm", "{N0CALL>APRS:>here\r\n"}};
    program.files.folders = {"/tiles"};
    for (const char* tiles : {"/a.log", "/tiles", "/tiles/3/4/5.png"})
        EXPECT_EQ(ContentOf(program.files, tiles), FileContent::Tiles) << tiles;
    for (const char* packets : {"/b.mbtiles", "/d.ptm", "/no/such"})
        EXPECT_EQ(ContentOf(program.files, packets), FileContent::Packets) << packets;
    EXPECT_EQ(ContentOf(program.files, "/c.txt"), FileContent::Map);

    OpenContent(program.main, FileContent::Tiles, "/tiles/3/4/5.png");
    EXPECT_EQ(program.main.map.tiles.source, "/tiles");
    OpenContent(program.main, FileContent::Map, "/d.ptm"); // Told, and the map is as it was.
    EXPECT_EQ(program.main.map.sMainMapFile, "");
    EXPECT_NE(program.main.sbStatusBar.Notice(), "");
    OpenContent(program.main, FileContent::Map, "/c.txt");
    EXPECT_EQ(program.main.map.sMainMapFile, "/c.txt");
}

TEST(MapAtStart, IsTheOneThatIsOpenOrNone)
{
    TestProgram program;
    const auto run = [&](const char* open) {
        program.main.map.sMainMapFile = open;
        RunMenuEntry(program.main, MenuEntry::mnuFileUseAtStart);
        const MenuEntryState state = StateOf(MenuEntry::mnuFileUseAtStart, {program.main, nullptr});
        return SettingText(program.main.Settings, Setting::DefaultMap) + (state.bEnabled ? ",enabled" : "") +
               (state.bChecked ? ",ticked" : "");
    };
    EXPECT_EQ(run("/home.ptm"), "/home.ptm,enabled,ticked");
    EXPECT_EQ(run(""), "");
}

} // namespace
} // namespace ruvenmark
