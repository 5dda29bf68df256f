// What the window does for whoever sits before it: the edit keys of the tree, first steps, files by their content, its
// layout.

#include "support/test_program.h"
#include "ui/first_steps.h"
#include "ui/layout.h"
#include "ui/menus.h"
#include "ui/opened_file.h"
#include "ui/tree_keys.h"
#include "ui/web_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

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
    const Location here = program.TheMap().GetLocation(1, 2);
    Shape line = program.TheMap().AddLine(here, here);
    EXPECT_FALSE(WantsFirstSteps(program.main));
    line.Delete();
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

bool Overlap(const LayoutRect& a, const LayoutRect& b)
{
    return a.bVisible && b.bVisible && a.left < b.left + b.width && b.left < a.left + a.width &&
           a.top < b.top + b.height && b.top < a.top + a.height;
}

bool IsInside(const LayoutRect& rect, const LayoutInput& window)
{
    return !rect.bVisible ||
           (rect.left >= 0 && rect.top >= 0 && rect.width >= 0 && rect.height >= 0 &&
            rect.left + rect.width <= window.scaleWidth && rect.top + rect.height <= window.scaleHeight);
}

void ExpectApart(const LayoutInput& window, std::int32_t x)
{
    const WindowLayout layout = SizeControls(window, x);
    const std::array rects = {layout.toolBar, layout.statusBar, layout.tree, layout.imgSplitter, layout.rightPane};
    for (std::size_t i = 0; i < rects.size(); ++i) {
        EXPECT_TRUE(window.scaleWidth < kMinWindowWidth || IsInside(rects[i], window)) << i;
        for (std::size_t other = 0; other < i; ++other)
            EXPECT_FALSE(Overlap(rects[i], rects[other])) << i << ' ' << other;
    }
}

TEST(Layout, NothingOverlapsOrIsClippedAtAnySize)
{
    for (const std::int32_t width : {0, 700, 1000, 3000, 12000, 28800})
        for (const std::int32_t height : {0, 500, 975, 9000, 16200})
            for (const std::int32_t x : {-5000, 0, 500, 2000, 11500, 99999})
                for (const unsigned bars : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U}) {
                    SCOPED_TRACE(testing::Message() << width << 'x' << height << " at " << x << " bars " << bars);
                    ExpectApart({width, height, std::min(600, height / 2), height / 4, (bars & 1U) != 0,
                                 (bars & 2U) != 0, (bars & 4U) != 0},
                                x);
                }
}

// What is hidden leaves its room to the others, and the splitter stops ahead of the edges.
TEST(Layout, WhatShowsFillsTheWindow)
{
    const auto at = [](bool bToolBar, bool bStatusBar, bool bLeftPane) {
        return SizeControls({12000, 9000, 600, 375, bToolBar, bStatusBar, bLeftPane}, 2500); // 800x600 pixels.
    };
    EXPECT_EQ(at(true, true, true).tree, (LayoutRect{0, 600, 2500, 8025}));
    EXPECT_EQ(at(true, true, false).rightPane, (LayoutRect{0, 600, 12000 - 100, 8025}));
    EXPECT_FALSE(at(true, true, false).tree.bVisible || at(true, true, false).imgSplitter.bVisible);
    EXPECT_EQ(at(false, false, true).rightPane, (LayoutRect{2540, 0, 12000 - (2500 + 140), 9000}));
    EXPECT_FALSE(at(false, false, true).toolBar.bVisible || at(false, false, true).statusBar.bVisible);
    EXPECT_EQ(ClampSplitter(499, 12000), 500);
    EXPECT_EQ(ClampSplitter(11501, 12000), 11500);
}

TEST(Layout, ANarrowWindowGrowsAndAMinimisedOneKeepsItsPlace)
{
    TestProgram program;
    KeepGeometry(program.main, 10, 20, kMinWindowWidth - 1, 8000);
    EXPECT_EQ(program.main.window.width, kMinWindowWidth);
    program.main.window.bMinimised = true;
    StopMainWindow(program.main);
    EXPECT_EQ(program.store.Get("MainLeft", "as before"), "as before");
    EXPECT_EQ(program.store.Get("WindowSplit", ""), "2000");
}

TEST(Layout, TheLeftPaneComesBackWithTheTreeOfTheRightView)
{
    TestProgram program;
    WindowState& window = program.main.window;
    mnuTreeView_Click(program.main);
    window.rightView = RightView::Sent;
    mnuTreeView_Click(program.main);
    EXPECT_TRUE(window.bLeftPane);
    EXPECT_EQ(window.leftTree, LeftTree::Messages);
    mnuViewMap_Click(program.main);
    EXPECT_EQ(window.leftTree, LeftTree::Stations);
}

TEST(Layout, HelpStaysWhereItIsWhenItIsThePageAlready)
{
    TestProgram program;
    std::string& address = program.main.window.webAddress;
    for (const auto& [before, after] : {std::pair("file:///elsewhere/Readme.htm", "file:///elsewhere/Readme.htm"),
                                        {"https://example.org/detail/N0CALL", "/program/Readme.htm"}}) {
        address = before;
        mnuRuvenmarkHelp_Click(program.main);
        EXPECT_EQ(address, after);
    }
}

} // namespace
} // namespace ruvenmark
