#include "lifecycle/lifecycle.h"
#include "links/station_files.h"
#include "platform/text.h"
#include "support/program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A program that has not started, with these settings stored.
struct Stored : Program {
    Stored(std::initializer_list<std::pair<const char*, const char*>> settings) : Program(false)
    {
        for (const auto& [key, value] : settings)
            store.Set(key, value);
    }
    void Start() { StartMainWindow(main); }
    bool Stop() { return StopMainWindow(main); }
    std::string Value(const char* key) { return store.Get(key, "(not stored)"); }
    void ChangeMap() { TheMap().AddPushpin(TheMap().GetLocation(1, 2), "pin"); }
};

TEST(Start, TheFirstOneAsksForTheRegionAndComesUpWithDefaults)
{
    for (const char* region : {"", "100", "0", "3", "1.5", "north"}) {
        Stored p{{"Region", region}};
        p.dialogs.region = kRegionEurope;
        p.Start();
        EXPECT_THAT(p.dialogs.calls, ElementsAre("RunRegion")) << region;
        EXPECT_EQ(p.main.mpCtrl.MapRegion(), kRegionEurope);
        EXPECT_EQ(p.main.sbStatusBar.PanelText(Panel::Call), "No Call Sign");
        EXPECT_EQ(p.main.sbStatusBar.PanelText(Panel::Tnc), "TNC not connected");
        EXPECT_EQ(p.main.window.caption, "Ruvenmark");
        EXPECT_EQ(p.main.window.width, 6500);
        EXPECT_TRUE(p.main.window.bLeftPane);
        EXPECT_TRUE(p.main.mpCtrl.ToolbarVisible(2) && p.main.mpCtrl.ToolbarVisible(3));
        EXPECT_NEAR(p.main.map.HalfCircumference, 12437, 20);
        EXPECT_EQ(p.main.map.QuarterCircumference * 2, p.main.map.HalfCircumference);
        EXPECT_TRUE(p.main.abandoned.IsEmpty());
        EXPECT_THAT(p.prompts.messages, IsEmpty());
        ASSERT_TRUE(p.Stop());
        EXPECT_EQ(p.Value("Region"), "2"); // Not asked again.
    }
}

TEST(Start, TakesWhatIsStored)
{
    Stored p{{"Region", "2"},
             {"Call", "N0CALL"},
             {"MainLeft", "-30"},
             {"ShowTreeView", "0"},
             {"FLDelay", "5"},
             {"FLAdd", "False"},
             {"ShowTCPUnknown", "True"},
             {"TrackStationPosition", "False"},
             {"AddTCPSymbol", "False"},
             {"Dest", ""},
             {"tcpFilterCall", "N1*"},
             {"flTracked", "False"},
             {"TrackedRFStations", " n0call  B n0call"}};
    p.Start();
    EXPECT_THAT(p.dialogs.calls, IsEmpty());
    EXPECT_EQ(SettingText(p.main.Settings, "Dest"), ""); // Stored, so no default.
    EXPECT_EQ(TrackListText(p.main.Of(Channel::RF)), "N0CALL B");
    EXPECT_EQ(p.main.Of(Channel::TCP).Filter.Call, "N1*");
    EXPECT_FALSE(p.main.Of(Channel::FL).Filter.bTracked);
    EXPECT_TRUE(p.main.Of(Channel::RF).Filter.bTracked);
    EXPECT_EQ(p.main.sbStatusBar.PanelText(Panel::Call), "N0CALL");
    EXPECT_EQ(p.main.window.left, -30);
    EXPECT_FALSE(p.main.window.bLeftPane);
    EXPECT_EQ(p.main.frmImport.iFLDelay, 5);
    EXPECT_FALSE(p.main.frmImport.bFLAdd);
    EXPECT_TRUE(p.main.Of(Channel::TCP).bShowUnknown);
    EXPECT_FALSE(p.main.Of(Channel::RF).bShowUnknown);
    EXPECT_FALSE(p.main.tracking.bTrackStationPosition);
    EXPECT_FALSE(p.main.frmTcp.bAddTCPSymbol);
}

// An early step that fails is skipped alone, and what it did not load is not saved over.
TEST(Start, UnusableGeometryIsSkippedAndKept)
{
    Stored p{{"MainLeft", "left"}, {"MainWidth", "4000"}, {"DefaultMap", "/gone.ptm"}, {"Call", "N0CALL"}};
    p.Start();
    EXPECT_TRUE(p.main.window.bShown) << "a program that runs without a window";
    EXPECT_EQ(p.main.sbStatusBar.PanelText(Panel::Call), "N0CALL");
    EXPECT_EQ(p.Text("RF"), "RF reports");
    EXPECT_EQ(p.main.abandoned.Count(), 2U);
    EXPECT_THAT(p.prompts.messages, IsEmpty()); // The map stands.
    ASSERT_TRUE(p.Stop());
    EXPECT_EQ(p.Value("MainLeft"), "left");
    EXPECT_EQ(p.Value("MainWidth"), "4000");
    EXPECT_EQ(p.Value("WindowSplit"), "(not stored)");
    EXPECT_EQ(p.Value("Path"), "WIDE2-2");
}

// A later failure loses all steps behind it; those parts of the store stay as they were.
TEST(Start, AnUnusableFilterFlagEndsItAndNothingUnreadIsSavedOver)
{
    Stored p{
        {"rfFilterOn", "maybe"},   {"tcpFilterCall", "N1CALL"},      {"TrackedRFStations", "N0CALL"},  {"FLDelay", "7"},
        {"ShowRFUnknown", "True"}, {"PrimaryServer", "example.net"}, {"TrackStationPosition", "False"}};
    p.Start();
    EXPECT_EQ(p.main.window.caption, "");
    EXPECT_EQ(p.main.sbStatusBar.PanelText(Panel::Call), "");
    EXPECT_TRUE(p.main.window.bStationTreeVisible);
    EXPECT_FALSE(IsTracked(p.main.Of(Channel::RF), "N0CALL"));
    p.Position(Channel::RF, "N0CALL", 1, 2); // Reports are taken all the same.
    EXPECT_EQ(p.Text("RF"), "RF reports (1)");
    p.prompts.answers = {Answer::No};
    ASSERT_TRUE(p.Stop());
    EXPECT_EQ(p.Value("rfFilterOn"), "maybe");
    EXPECT_EQ(p.Value("tcpFilterCall"), "N1CALL");
    EXPECT_EQ(p.Value("TrackedRFStations"), "N0CALL");
    EXPECT_EQ(p.Value("FLDelay"), "7");
    EXPECT_EQ(p.Value("ShowRFUnknown"), "True");
    EXPECT_EQ(p.Value("ShowTrackLine"), "(not stored)");
    EXPECT_EQ(p.Value("PrimaryServer"), "example.net");
    EXPECT_EQ(p.Value("TrackStationPosition"), "False");
    EXPECT_EQ(p.Value("MobileColor"), "1"); // The settings were loaded.
}

TEST(Start, WithoutAMapSaysSoAndReportsAreFiled)
{
    Stored p{{"Region", "100"}, {"DefaultMap", "/gone.ptm"}};
    p.dialogs.region = 7;
    p.Start();
    EXPECT_EQ(p.main.mpCtrl.ActiveMap(), nullptr);
    EXPECT_THAT(p.prompts.messages, ElementsAre("Failed to initialize MapPoint North America."));
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

TEST(Stop, SavesEverythingInItsOrder)
{
    Stored p{};
    p.Start();
    SetTrackList(p.main.Of(Channel::FL), "N0CALL");
    p.main.serverLists.PortList.Set("14580", "14580");
    ASSERT_TRUE(p.Stop());
    std::vector<std::string> keys;
    for (const auto& [key, value] : p.store.Values())
        keys.push_back(key);
    std::size_t place = 0;
    for (const std::string_view key :
         Words("MainLeft MainTop MainWidth MainHeight ShowTreeView WindowSplit TrackStationPosition "
               "TrackedRFStations TrackedTCPStations TrackedFLStations ShowTrackLine rfFilterDest flFilterLon "
               "rfFilterOn flFilterApply Call DestLon PrimaryServer PrimaryPort PrimaryFilter ServerBeacon "
               "AddTCPSymbol ReconnectServer ReconnectAttempt BackupServer BackupPort BackupFilter BackupBeacon "
               "AutoTCP ShowRFUnknown ShowTCPUnknown ShowFLUnknown FLDelay FLAdd FLShow")) {
        const auto found = static_cast<std::size_t>(std::find(keys.begin(), keys.end(), key) - keys.begin());
        EXPECT_LT(found, keys.size()) << key;
        EXPECT_GE(found, place) << key;
        place = found;
    }
    for (const auto& [key, text] : {std::pair("Dest", "100"), std::pair("MobileColor", "1"), std::pair("All", "0"),
                                    std::pair("TrackLineSize", "1"), std::pair("rfTracked", "True")})
        EXPECT_EQ(p.Value(key), text) << key; // The defaults.
    EXPECT_EQ(p.files.texts["/program/ports.txt"], "14580");
    EXPECT_TRUE(p.main.Settings.values.IsEmpty());
    EXPECT_TRUE(p.main.serverLists.PortList.IsEmpty());

    // What is emptied at the end is not taken for the operator's choice if the stop runs once more.
    ASSERT_TRUE(p.Stop());
    EXPECT_EQ(p.Value("TrackedFLStations"), "N0CALL");
    EXPECT_EQ(p.Value("Path"), "WIDE2-2");
}

TEST(Stop, ACancelLeavesEverythingRunning)
{
    Stored p{};
    p.Start();
    SetTrackList(p.main.Of(Channel::RF), "N0CALL");
    p.Position(Channel::RF, "N0CALL", 1, 2);
    p.Position(Channel::RF, "N0CALL", 3, 4);
    const std::size_t stored = p.store.Values().Count();
    p.prompts.answers = {Answer::Cancel, Answer::Yes};
    EXPECT_FALSE(p.Stop());
    EXPECT_THAT(p.prompts.questions, ElementsAre("Do you want to save the current map?"));
    EXPECT_EQ(p.store.Values().Count(), stored);
    EXPECT_EQ(p.main.Of(Channel::RF).TrackMarkers.Count(), 1U);
    EXPECT_TRUE(IsTracked(p.main.Of(Channel::RF), "N0CALL"));
    EXPECT_FALSE(p.TheMap().Saved());

    p.main.map.sMainMapFile = "/my.ptm";
    EXPECT_TRUE(p.Stop());
    EXPECT_TRUE(p.files.texts.contains("/my.ptm"));
    EXPECT_EQ(p.main.Of(Channel::RF).TrackMarkers.Count(), 0U);
    EXPECT_EQ(p.Value("TrackedRFStations"), "N0CALL");
}

// The first failure ends the stop; the program closes all the same.
TEST(Stop, AMapThatCannotBeSavedLosesTheSavesBehindIt)
{
    Stored p{};
    p.Start();
    p.ChangeMap();
    p.main.map.sMainMapFile = "/full.ptm";
    p.files.FailWrite(1);
    p.prompts.answers = {Answer::Yes};
    EXPECT_TRUE(p.Stop());
    EXPECT_EQ(p.Value("Path"), "(not stored)");
    EXPECT_EQ(p.main.abandoned.Count(), 1U);
}

} // namespace
} // namespace ruvenmark
