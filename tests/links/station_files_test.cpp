#include "links/import_form_rules.h"
#include "links/station_files.h"
#include "map/markers.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFailed = "Stations load failed!";

class StationFiles : public testing::Test {
protected:
    static std::string Line(const char* call) { return call + ">APRS:=4903.50N/07201.75W>x"s; }
    void Load(std::string text)
    {
        p.files.texts["/day.txt"] = std::move(text);
        LoadStationFile(p.main, "/day.txt");
        EXPECT_FALSE(p.main.links.FileLoading);
        EXPECT_EQ(p.main.links.aprsfl, nullptr);
        EXPECT_FALSE(p.main.sbStatusBar.IsProgressVisible());
        EXPECT_EQ(p.main.sbStatusBar.Progress(), 0);
    }
    std::string FourLines() { return Line("A") + "\r\n" + Line("B") + "\n\n  " + Line("C") + "  \r\n" + Line("D"); }
    std::vector<std::string> Stations() { return p.ChildTexts("FLPositions"); }

    TestProgram p;
};

TEST_F(StationFiles, EveryLineIsParsedWithProgressAndOneYield)
{
    std::vector<int> progress;
    for (int i = 1; i <= 4; ++i) {
        p.yield.At(i, [&] {
            progress.push_back(p.main.sbStatusBar.Progress());
            EXPECT_TRUE(p.main.links.FileLoading && p.main.sbStatusBar.IsProgressVisible());
        });
    }
    Load(FourLines());
    EXPECT_THAT(Stations(), ElementsAre("A", "B", "C", "D")); // Trimmed, blank lines dropped, the last one whole.
    EXPECT_THAT(progress, ElementsAre(0, 33, 66, 100));       // Blank lines do not count.
    EXPECT_THAT(p.sleep.slept, IsEmpty());
    EXPECT_THAT(p.prompts.messages, IsEmpty());
    EXPECT_TRUE(p.Node("FL")->IsBold());
    EXPECT_EQ(p.Image("FL"), "Closed");
    EXPECT_EQ(p.sources.Counts().decoded, 4U);
    Load(Line("E") + "\n" + Line("A")); // A second load adds to the same folders.
    EXPECT_EQ(p.Text("FL"), "FL reports (5)");
}

// Nobody was told what a load had brought, nor that a file held no packet at all, nor why it could not be read.
TEST_F(StationFiles, TheStatusBarSumsUpWhatWasLoaded)
{
    int ended = 0;
    const auto subscription = p.main.links.LoadEnded.Observe([&] { ++ended; });
    Load(Line("A") + "\n" + Line("B") + "\nno packet\n" + Line("A"));
    EXPECT_EQ(p.main.sbStatusBar.Notice(), "3 packets, 1 refused, 2 stations");
    EXPECT_TRUE(p.Node("FL")->IsExpanded());
    Load("no packet\nnor this");
    EXPECT_EQ(p.main.sbStatusBar.Notice(), "No packets: 2 lines refused");
    p.yield.At(p.yield.calls + 2, [&] { p.main.links.FileLoading = false; });
    Load(FourLines());
    EXPECT_TRUE(p.main.sbStatusBar.Notice().starts_with("Stopped: 2 packets, "));
    LoadStationFile(p.main, "/none");
    EXPECT_EQ(p.main.sbStatusBar.Notice(), "The stations could not be loaded: cannot open /none");
    EXPECT_EQ(ended, 4);
}

TEST_F(StationFiles, NoLinesSayNothingAndASingleOneOrNoFileFails)
{
    Load("");
    Load("\r\n\n\r\n");
    Load("\0\n"s + Line("A") + "\0\n"s); // Lines with a NUL vanish.
    EXPECT_THAT(p.prompts.messages, IsEmpty());
    EXPECT_EQ(p.Text("FL"), "FL reports");
    p.main.frmImport.iFLDelay = 10;
    Load("\r\n" + Line("A") + "\r\n"); // Parsed, but strangely told so: the percentage of a single line is none.
    EXPECT_THAT(Stations(), ElementsAre("A"));
    EXPECT_EQ(p.yield.calls, 0);
    EXPECT_THAT(p.sleep.slept, IsEmpty());
    p.files.unreadable.insert("/day.txt");
    Load(FourLines());
    LoadStationFile(p.main, "/missing");
    EXPECT_THAT(p.prompts.messages, ElementsAre(kFailed, kFailed, kFailed));
}

// A mark at the head is no part of the first packet, and a line that is too long costs no other line.
TEST_F(StationFiles, MarksAndOverlongLinesCostNoPacket)
{
    Load("\xEF\xBB\xBF" + Line("A") + "\n" + Line("B") + std::string(100000, 'x') + "\n" + Line("C"));
    EXPECT_THAT(Stations(), ElementsAre("A", "C"));
    EXPECT_EQ(p.sources.Counts().decoded, 2U);
    EXPECT_EQ(p.sources.Counts().Undecoded(), 1U);
    EXPECT_THAT(p.prompts.messages, IsEmpty());
}

// Too long to be counted ahead: still from 0 to 100 and never back.
TEST_F(StationFiles, ProgressOfALargeFileGoesByBytes)
{
    std::string text;
    while (text.size() < 600000)
        text += Line("A") + "\r\n";
    std::vector<int> progress;
    const int lines = static_cast<int>(text.size() / (Line("A").size() + 2));
    for (int i = 1; i <= lines; ++i)
        p.yield.At(i, [&] { progress.push_back(p.main.sbStatusBar.Progress()); });
    Load(text);
    ASSERT_EQ(progress.size(), static_cast<std::size_t>(lines));
    EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end()));
    EXPECT_EQ(progress.front(), 0);
    EXPECT_NEAR(progress[progress.size() / 2], 50, 1);
    EXPECT_LT(progress[progress.size() - 2], 100);
    EXPECT_EQ(progress.back(), 100);
}

// While a pipe brings nothing the window goes on, and may end the load.
TEST_F(StationFiles, APipeIsReadAsItComes)
{
    std::vector<std::string> stations;
    MemoryStream pipe({Line("A") + "\n" + Line("B"), "", "", "\n", "", Line("C")}, std::nullopt);
    p.yield.At(1, [&] { stations = Stations(); });
    LoadStationFile(p.main, pipe);
    EXPECT_THAT(stations, ElementsAre("A"));
    EXPECT_THAT(Stations(), ElementsAre("A", "B", "C"));
    EXPECT_THAT(p.prompts.messages, IsEmpty());

    MemoryStream stopped({Line("D") + "\n", "", "", Line("E") + "\n" + Line("F")}, std::nullopt);
    p.yield.At(p.yield.calls + 1, [&] { mnuImportStations_Click(p.main); }); // While it waits for the second line.
    LoadStationFile(p.main, stopped);
    EXPECT_THAT(Stations(), ElementsAre("A", "B", "C", "D"));
    EXPECT_THAT(p.prompts.messages, IsEmpty());
    EXPECT_THAT(p.prompts.fileTitles, IsEmpty()); // The entry stopped the load; it asked for no file.
}

// The program ends while a file loads: what is saved must not be filled again behind its back.
TEST_F(StationFiles, AStopOfTheProgramEndsTheLoad)
{
    p.main.frmImport.iFLDelay = 10;
    SetTrackList(p.main.Of(Channel::FL), "C");
    p.prompts.answers = {Answer::No};
    p.yield.At(2, [&] { EXPECT_EQ(StopMainWindow(p.main), StopResult::Stopped); });
    Load(FourLines());
    EXPECT_THAT(Stations(), ElementsAre("A", "B"));
    EXPECT_THAT(p.sleep.slept, ElementsAre(10));
    EXPECT_THAT(p.prompts.messages, IsEmpty());
    EXPECT_EQ(p.store.Lasting("FLDelay"), "10");
    EXPECT_EQ(p.store.Lasting("TrackedFLStations"), "C");
}

// In one piece a long one could not be ended before it is over.
TEST_F(StationFiles, TheDelayIsReadAtEachLineAndLetsEventsInBetweenItsPieces)
{
    p.main.frmImport.iFLDelay = 20;
    p.yield.At(2, [&] { p.main.frmImport.iFLDelay = 120; });
    p.yield.At(4, [&] { p.main.links.FileLoading = false; }); // Behind the second piece.
    Load(FourLines());
    EXPECT_THAT(p.sleep.slept, ElementsAre(20, 50, 50));
    EXPECT_THAT(Stations(), ElementsAre("A", "B"));
    EXPECT_THAT(p.prompts.messages, IsEmpty());
}

// Whatever comes in while a load lets events in: other channels, and commands that take away what the load works on.
TEST_F(StationFiles, AnythingMayHappenInAYield)
{
    p.yield.At(1, [&] {
        p.Position(Channel::RF, "R", 1, 2);
        ClearChannelReports(p.main, Channel::FL);
    });
    p.yield.At(2, [&] {
        RemoveStation(p.main, Channel::FL, "B", kPositions);
        mnuHideAll_Click(p.main); // Shows its own progress in the bar of the load.
        EXPECT_TRUE(p.main.sbStatusBar.IsProgressVisible());
        EXPECT_EQ(p.main.sbStatusBar.Progress(), 33);
        EXPECT_FALSE(p.main.sbStatusBar.IsWaitPointer());
        p.main.mpCtrl.NewMap(kRegionEurope);
    });
    p.yield.At(3, [&] { p.Tree().Remove(*p.Node("FL")); });
    Load(FourLines());
    EXPECT_EQ(p.Text("RF"), "RF reports (1)");
    EXPECT_EQ(p.Text("FL"), "(no node)");
    EXPECT_EQ(p.main.Of(Channel::FL).Stations.Count(), 1U); // "C"; "D" found no folder.
    EXPECT_THAT(p.MarkerNames(), ElementsAre("C(f)", "D(f)"));
    EXPECT_THAT(p.prompts.messages, IsEmpty());
}

TEST_F(StationFiles, TheMenuAsksForFileAndOptions)
{
    p.files.texts["/day.txt"] = FourLines();
    mnuImportStations_Click(p.main); // No file chosen.
    EXPECT_THAT(p.dialogs.calls, IsEmpty());
    EXPECT_THAT(p.prompts.fileTitles, ElementsAre("Open"));

    p.prompts.files = {"/day.txt", "/day.txt"};
    mnuImportStations_Click(p.main); // Whatever closes the dialog cancels.
    EXPECT_EQ(p.main.frmImport.iFLDelay, -1);
    EXPECT_EQ(p.Text("FL"), "(no node)");
    p.dialogs.onRun[Form::frmImport] = [](MainWindow& main) {
        EXPECT_EQ(main.frmImport.txtDelay, "0"); // A former cancel shows as none.
        main.frmImport.cboSpeed = 4;
        frmImport_Accept(main.frmImport);
    };
    mnuLoadStations_Click(p.main);
    EXPECT_EQ(p.main.frmImport.speed, 4);
    EXPECT_EQ(p.Text("FL"), "FL reports (4)");
}

} // namespace
} // namespace ruvenmark
