#include "links/station_files.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A program that has not started, with these settings stored.
struct Stored : TestProgram {
    Stored(std::initializer_list<std::pair<const char*, const char*>> settings) : TestProgram(false)
    {
        for (const auto& [key, value] : settings)
            store.Set(key, value);
    }
    void Start() { StartMainWindow(main); }
    bool Stop() { return StopMainWindow(main) != StopResult::GoesOn; }
    std::string Value(const char* key) { return store.Get(key, "(not stored)"); }
    void ChangeMap() { TheMap().AddPushpin(TheMap().GetLocation(1, 2), "pin"); }
};

struct Started : Stored {
    Started() : Stored({}) { Start(); }
};

TEST(Start, TheFirstOneAsksForTheRegionAndComesUp)
{
    for (const char* region : {"", "100", "0", "3", "1.5", "north"}) {
        Stored p{{"Region", region}};
        p.dialogs.onRun[Form::frmRegion] = [](MainWindow& main) { frmRegion_Click(main.frmRegion, "Italy"); };
        p.Start();
        EXPECT_THAT(p.dialogs.calls, ElementsAre("Run frmRegion")) << region;
        EXPECT_EQ(p.main.mpCtrl.MapRegion(), kRegionEurope);
        EXPECT_EQ(p.main.sbStatusBar.PanelText(Panel::Tnc), "TNC not connected");
        EXPECT_EQ(p.main.window.caption, "Ruvenmark");
        EXPECT_TRUE(p.main.abandoned.IsEmpty());
        EXPECT_THAT(p.prompts.messages, IsEmpty());
        ASSERT_TRUE(p.Stop());
        EXPECT_EQ(p.Value("Region"), "2"); // Not asked again.
    }
}

// A value that cannot be read must cost neither the others nor itself: the operator may want to mend it.
TEST(Start, AnUnreadableValueCountsAsItsDefaultAndStaysUntilItIsChanged)
{
    Stored p{{"MainLeft", "left"},  {"MainWidth", "4000"}, {"PrimaryPort", "40000"},    {"rfFilterOn", "maybe"},
             {"TrackLineSize", ""}, {"FLDelay", "1e9"},    {"tcpFilterCall", "N1CALL"}, {"Dest", ""}};
    p.Start();
    EXPECT_EQ(SettingText(p.main.Settings, Setting::Dest), ""); // Stored, so no default.
    EXPECT_EQ(p.main.window.left, 1000);
    EXPECT_EQ(p.main.window.width, 4000);
    EXPECT_EQ(p.main.frmTcp.iServerPort, -1);
    EXPECT_EQ(SettingText(p.main.Settings, Setting::TrackLineSize), "1");
    EXPECT_EQ(p.main.Of(Channel::TCP).Filter.Call, "N1CALL");
    EXPECT_TRUE(p.main.abandoned.IsEmpty());
    EXPECT_EQ(p.notices.lines.size(), 5U); // One each, though one is read twice.
    EXPECT_THAT(p.notices.lines, testing::Contains("setting PrimaryPort: '40000' cannot be used, '-1' is taken"));

    p.main.frmImport.iFLDelay = 20;
    ASSERT_TRUE(p.Stop());
    for (const auto& [key, text] : {std::pair("MainLeft", "left"),
                                    {"PrimaryPort", "40000"},
                                    {"rfFilterOn", "maybe"},
                                    {"TrackLineSize", ""},
                                    {"FLDelay", "20"}})
        EXPECT_EQ(p.Value(key), text);
}

// The map of the region that is wanted, not that of the default.
TEST(Start, WithoutAMapSaysWhichAndReportsAreFiled)
{
    Stored p{{"Region", "100"}, {"DefaultMap", "/gone.ptm"}}, europe{{"Region", "100"}};
    p.dialogs.onRun[Form::frmRegion] = [](MainWindow& main) { main.frmRegion.selectedRegion = 7; };
    europe.dialogs.onRun[Form::frmRegion] = [](MainWindow& main) {
        main.map.Region = kRegionEurope;
        throw Failure("the window is gone");
    };
    europe.Start();
    EXPECT_THAT(europe.prompts.messages, ElementsAre("Failed to initialize MapPoint Europe."));
    p.Start();
    EXPECT_THAT(p.prompts.messages, ElementsAre("Failed to initialize MapPoint North America."));
    EXPECT_EQ(p.main.mpCtrl.ActiveMap(), nullptr);
    p.files.texts["/f"] =
        "N0CALL>APRS:=4903.50N/07201.75W>088/036x\nN1CALL>APRS:;LEADER   _092345z4903.50N/07201.75W>\n";
    LoadStationFile(p.main, "/f");
    EXPECT_EQ(p.RecordText(Channel::FL, "N0CALL", Field::Speed), "41");
    ClearChannelReports(p.main, Channel::FL);
    EXPECT_EQ(p.Text("FL"), "FL reports");
    EXPECT_TRUE(p.Stop()); // No map, no question.
    EXPECT_THAT(p.prompts.questions, IsEmpty());
}

TEST(Start, OpensTheDefaultMapAsANewOne)
{
    Stored p{{"Region", "2"}};
    p.Start();
    p.ChangeMap();
    p.main.mpCtrl.SaveMapAs("/home.ptm");
    Stored next{{"Region", "1"}, {"DefaultMap", "/home.ptm"}};
    next.files.texts = p.files.texts;
    next.Start();
    EXPECT_THAT(next.MarkerNames(), ElementsAre("pin"));
    EXPECT_EQ(next.main.mpCtrl.MapRegion(), kRegionEurope);
    EXPECT_EQ(next.main.window.caption, "Ruvenmark");
    EXPECT_EQ(next.main.map.sMainMapFile, "");
    ASSERT_TRUE(next.Stop()); // Unchanged: nothing is asked.
    EXPECT_THAT(next.prompts.questions, IsEmpty());
    EXPECT_EQ(next.Value("Region"), "1"); // The chosen one, not the document's.
}

// What is emptied at the end is not taken for the operator's choice if the stop runs once more.
TEST(Stop, LetsGoOfWhatItSavedAndRunsOnlyOnce)
{
    Started p;
    SetTrackList(p.main.Of(Channel::FL), "N0CALL");
    p.main.serverLists.PortList.Set("14580", "14580");
    ASSERT_TRUE(p.Stop());
    EXPECT_EQ(p.files.texts["/program/ports.txt"], "14580");
    EXPECT_EQ(p.store.Lasting("TrackedFLStations"), "N0CALL");
    EXPECT_EQ(SettingText(p.main.Settings, Setting::Path), "");
    EXPECT_TRUE(p.main.serverLists.PortList.IsEmpty());

    ASSERT_TRUE(p.Stop());
    EXPECT_EQ(p.store.Lasting("TrackedFLStations"), "N0CALL");
    EXPECT_EQ(p.store.Lasting("Path"), "WIDE2-2");
}

TEST(Stop, ACancelLeavesEverythingRunning)
{
    Started p;
    SetTrackList(p.main.Of(Channel::RF), "N0CALL");
    for (const double lat : {1, 3})
        p.Position(Channel::RF, "N0CALL", lat, 2);
    const std::size_t writes = p.store.written.size();
    p.prompts.answers = {Answer::Cancel, Answer::Yes};
    EXPECT_FALSE(p.Stop());
    EXPECT_THAT(p.prompts.questions, ElementsAre("Do you want to save the current map?"));
    EXPECT_EQ(p.store.written.size(), writes);
    EXPECT_EQ(p.main.Of(Channel::RF).TrackMarkers.Count(), 1U);
    EXPECT_FALSE(p.TheMap().Saved());

    p.main.map.sMainMapFile = "/my.ptm";
    EXPECT_TRUE(p.Stop());
    EXPECT_TRUE(p.files.texts.contains("/my.ptm"));
    EXPECT_EQ(p.main.Of(Channel::RF).TrackMarkers.Count(), 0U);
    EXPECT_EQ(p.Value("TrackedRFStations"), "N0CALL");
}

// The map is what the operator would miss most: without it nothing ends, as after a cancel.
TEST(Stop, AMapThatCannotBeSavedSaysSoAndEverythingGoesOn)
{
    Started p;
    p.ChangeMap();
    p.Position(Channel::RF, "N0CALL", 1, 2);
    p.main.map.sMainMapFile = "/full.ptm";
    p.files.FailWrite(1);
    p.prompts.answers = {Answer::Yes};
    EXPECT_EQ(StopMainWindow(p.main), StopResult::GoesOn);
    EXPECT_THAT(p.prompts.messages, ElementsAre("The map could not be saved: cannot write /full.ptm"));
    EXPECT_EQ(p.Value("Path"), "(not stored)");
    EXPECT_FALSE(p.TheMap().Saved());
    p.Position(Channel::RF, "N1CALL", 1, 2);
    EXPECT_EQ(p.Text("RF"), "RF reports (2)");
}

// The order in which a crash in the midst of the stop would cost least: the lists of servers, then the messages.
TEST(Stop, TheMessagesAreSavedBehindTheServersAndTheirFailureCostsNothingElse)
{
    Started p;
    p.main.serverLists.PortList.Set("14580", "14580");
    p.Sink(Channel::RF).ReportAprsMsg({"W1AW", "APRS", "", "BLN1", "net", ""});
    p.files.FailWrite(2);
    EXPECT_EQ(StopMainWindow(p.main), StopResult::StoppedWithLoss);
    EXPECT_TRUE(p.files.texts.contains("/program/ports.txt"));
    EXPECT_FALSE(p.files.texts.contains("/program/Inbox.txt"));
    EXPECT_EQ(p.store.Lasting("FLDelay"), "0");
}

// On a signal nobody is there to be asked: the map's changes are lost, the rest is kept.
TEST(Stop, UnaskedItKeepsAllButTheMap)
{
    Started p;
    p.ChangeMap();
    p.dialogs.Show(Form::frmFilter, p.main);
    EXPECT_EQ(StopMainWindow(p.main, MayAsk::No), StopResult::Stopped);
    EXPECT_THAT(p.prompts.questions, IsEmpty());
    EXPECT_EQ(p.Value("Path"), "WIDE2-2");
    EXPECT_FALSE(p.dialogs.IsVisible(Form::frmFilter));
}

} // namespace
} // namespace ruvenmark
