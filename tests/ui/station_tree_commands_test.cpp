#include "links/station_files.h"
#include "support/test_program.h"
#include "ui/call_sign_page.h"
#include "ui/station_tree_commands.h"
#include "ui/web_page.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using Texts = std::vector<std::string>;

TEST(StationTree, IsSortedOnceByCommandAndAnExpandedStationIsNoNews)
{
    TestProgram program;
    for (const char* call : {"N3C", "n1a", "N2B"})
        program.Position(Channel::TCP, call, 40, -80);
    program.Select("TCPPositions");
    RunMenuEntry(program.main, MenuEntry::mnuTcpSort);
    program.Position(Channel::TCP, "N0Z", 40, -80);
    EXPECT_EQ(program.ChildTexts("TCPPositions"), (Texts{"n1a", "N2B", "N3C", "N0Z"}));
    for (const char* key : {"TCPPositionsN0Z", "TCPPositions"})
        tvStationList_Expand(program.main, *program.Node(key));
    EXPECT_FALSE(program.Node("TCPPositionsN0Z")->IsBold());
    EXPECT_TRUE(program.Node("TCPPositions")->IsBold());
}

TEST(StationTree, ClearsOneChannelOrAll)
{
    TestProgram program;
    AddChannelTree(program.Tree(), Channel::FL);
    for (const Channel channel : kChannels)
        program.Position(channel, "N0CALL", 40, -80);
    program.Select("RF");
    program.prompts.answers = {Answer::No, Answer::Yes, Answer::Yes};
    RunMenuEntry(program.main, MenuEntry::mnuClearReports);
    EXPECT_EQ(program.MarkerNames().size(), 3U);
    RunMenuEntry(program.main, MenuEntry::mnuClearReports);
    EXPECT_EQ(program.MarkerNames(), (Texts{"N0CALL(t)", "N0CALL(f)"}));
    RunMenuEntry(program.main, MenuEntry::mnuClearAllReports);
    EXPECT_TRUE(program.MarkerNames().empty());
    EXPECT_EQ(program.Text("FL"), "FL reports");
    const std::string one = "Are you sure you want to delete all RF reports?";
    EXPECT_EQ(program.prompts.questions, (Texts{one, one, "Are you sure you want to delete all reports?"}));
}

TEST(StationTree, UnloadsTheFilesWithTheirMarkersAndCircles)
{
    for (const int others : {0, 5}) { // More markers than stations take the other walk.
        TestProgram program;
        program.Hear("N0CALL>APRS:!4000.00N/08000.00W>PHG5130");
        for (int i = 0; i < others; ++i)
            program.Position(Channel::TCP, "N0CALL-" + std::to_string(i), 40, -80);
        program.Select("FLPositionsN0CALL");
        RunMenuEntry(program.main, MenuEntry::mnuShowRange);
        ASSERT_EQ(program.TheMap().Shapes().Count(), 1U);

        program.Select("FL");
        program.prompts.answers = {Answer::No, Answer::Yes};
        RunMenuEntry(program.main, MenuEntry::mnuUnloadFolder);
        EXPECT_EQ(program.prompts.questions.back(), "Are you sure you want to unload all FL reports (1) reports?");
        EXPECT_NE(program.Node("FL"), nullptr);
        RunMenuEntry(program.main, MenuEntry::mnuUnloadFolder);
        EXPECT_EQ(program.Node("FL"), nullptr);
        EXPECT_EQ(program.MarkerNames().size(), static_cast<std::size_t>(others));
        EXPECT_EQ(program.TheMap().Shapes().Count(), 0U);
        EXPECT_TRUE(program.main.Of(Channel::FL).Stations.IsEmpty());
        EXPECT_TRUE(program.main.Of(Channel::FL).StationRanges.IsEmpty());

        program.Hear("N0CALL>APRS:!4000.00N/08000.00W>");
        EXPECT_EQ(program.Text("FL"), "FL reports (1)");
    }
}

TEST(StationTree, UnloadingWhileAFileLoadsEndsTheLoad)
{
    TestProgram program;
    program.files.texts["/day.txt"] = "N0CALL>APRS:!4000.00N/08000.00W>\nN1CALL>APRS:!4000.00N/08000.00W>\n"
                                      "N2CALL>APRS:!4000.00N/08000.00W>\n";
    program.prompts.answers = {Answer::Yes};
    program.yield.At(2, [&] {
        program.Select("FL");
        RunMenuEntry(program.main, MenuEntry::mnuUnloadFolder);
    });
    LoadStationFile(program.main, "/day.txt");
    EXPECT_EQ(program.yield.calls, 2);
    EXPECT_EQ(program.Node("FL"), nullptr);
    EXPECT_TRUE(program.MarkerNames().empty());
    EXPECT_TRUE(program.prompts.messages.empty());
}

TEST(StationTree, FiltersAreSwitchedAndEditedByTheirRootAndOnlyFilesAreUnloaded)
{
    TestProgram program;
    program.Select("TCP");
    RunMenuEntry(program.main, MenuEntry::mnuPopupToggleFilter);
    EXPECT_TRUE(program.main.Of(Channel::TCP).Filter.bOn && !program.main.Of(Channel::RF).Filter.bOn);
    EXPECT_TRUE(program.main.frmFilter.fields[Index(Channel::TCP)].bOn); // Else a Save there would undo it.
    program.dialogs.calls.clear();
    for (const char* key : {"TCP", "RFPositions"}) {
        program.Select(key);
        RunMenuEntry(program.main, MenuEntry::mnuPopupEditFilter);
        EXPECT_EQ(program.main.frmFilter.SSTab1, 1);
    }
    EXPECT_EQ(program.dialogs.calls, Texts{"Show frmFilter"});
    for (const char* key : {"RF", "TCP", "My"}) {
        program.Select(key);
        RunMenuEntry(program.main, MenuEntry::mnuUnloadFolder);
        EXPECT_NE(program.Node(key), nullptr);
    }
    EXPECT_TRUE(program.prompts.questions.empty());
}

TEST(StationTree, OperatorInfoOpensTheBrowserWithASafeAddress)
{
    EXPECT_TRUE(CallSignPage("N0CALL-9-1").ends_with("/detail/N0CALL"));
    EXPECT_TRUE(CallSignPage("A/../?q=\"<b>\xC3\xA9").ends_with("/detail/A%2F..%2F%3Fq%3D%22%3Cb%3E%C3%A9"));

    TestProgram program;
    program.Position(Channel::RF, "N0CALL-9", 40, -80);
    program.Select("RFPositionsN0CALL-9");
    RunMenuEntry(program.main, MenuEntry::mnuInfo);
    ASSERT_EQ(program.desktop.pages, Texts{CallSignPage("N0CALL")});
    WindowState& window = program.main.window;
    EXPECT_EQ(window.rightView, RightView::Web);
    EXPECT_TRUE(IsBrowserPage(window.webAddress));
    EXPECT_EQ(BrowserNotice(window).find("could be started"), std::string::npos);
    window.webAddress = "https://\"><b>&lt;";
    EXPECT_NE(BrowserNotice(window).find("href=\"https://&quot;&gt;&lt;b&gt;&amp;lt;\">https://&quot;"),
              std::string::npos);
    program.desktop.bBrowser = false;
    RunMenuEntry(program.main, MenuEntry::mnuInfo);
    EXPECT_NE(BrowserNotice(window).find("No web browser could be started"), std::string::npos);
    EXPECT_EQ(program.main.sbStatusBar.Notice(), "No web browser could be started");
}

} // namespace
} // namespace ruvenmark
