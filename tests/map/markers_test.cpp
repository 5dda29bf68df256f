#include "map/marker_names.h"
#include "map/markers.h"
#include "map/symbols.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

Record RecordOf(std::initializer_list<std::pair<Field, const char*>> fields)
{
    Record record;
    for (const auto& [field, text] : fields)
        record.Set(field, text);
    return record;
}

TEST(MarkerNote, HasUpToSixLines)
{
    EXPECT_EQ(MarkerNote("RF", RecordOf({{Field::PositionReceived, "T"}, {Field::Lat, "1"}, {Field::Lon, "-2.5"}})),
              "RF, T\r\n1°, -2.5°");
    EXPECT_EQ(MarkerNote("FL", Record()), "FL, \r\n°, °");
    const Record full = RecordOf({{Field::PositionReceived, "T"},
                                  {Field::PositionPath, "WIDE1-1"},
                                  {Field::Lat, "1"},
                                  {Field::Lon, "2"},
                                  {Field::Alt, "300"},
                                  {Field::Speed, "40"},
                                  {Field::Course, "90"},
                                  {Field::Power, "25"},
                                  {Field::Height, "20"},
                                  {Field::Gain, "3"},
                                  {Field::Directivity, "Omni"},
                                  {Field::Comment, " hello "}});
    EXPECT_EQ(MarkerNote("TCP", full),
              "TCP, T\r\nWIDE1-1\r\n1°, 2°\r\n300 ft, 40 mph, 90°\r\n25 watts, 20 ft, 3 db, Omni\r\nhello");
}

// Only blanks at the ends go, so the comma of the last piece stays.
TEST(MarkerNote, PiecesKeepTheirCommas)
{
    const auto lastLine = [](std::initializer_list<std::pair<Field, const char*>> fields) {
        const std::string note = MarkerNote("RF", RecordOf(fields));
        return note.substr(note.rfind('\n') + 1);
    };
    EXPECT_EQ(lastLine({{Field::Alt, "300"}}), "300 ft,");
    EXPECT_EQ(lastLine({{Field::Speed, "0"}}), "0 mph,");
    EXPECT_EQ(lastLine({{Field::Course, "90"}}), "90°");
    EXPECT_EQ(lastLine({{Field::Gain, "3"}}), "3 db,");
    EXPECT_EQ(lastLine({{Field::Directivity, " Omni "}}), "Omni");
    EXPECT_EQ(lastLine({{Field::Directivity, "  "}}), "°, °");
    EXPECT_EQ(lastLine({{Field::Comment, "   "}}), "°, °");
}

TEST(MarkerNote, LongTextsAreCutInCharacters)
{
    const auto lines = [](Field field, const std::string& text) {
        Record record;
        record.Set(field, text);
        return MarkerNote("RF", record);
    };
    const std::string path22(22, 'p'), comment25(25, 'c');
    EXPECT_THAT(lines(Field::PositionPath, path22), testing::HasSubstr("\n" + path22 + "\r"));
    EXPECT_THAT(lines(Field::PositionPath, path22 + "q"), testing::HasSubstr("\n" + path22 + "...\r"));
    EXPECT_THAT(lines(Field::Comment, comment25), testing::EndsWith("\n" + comment25));
    EXPECT_THAT(lines(Field::Comment, comment25 + "d"), testing::EndsWith("\n" + comment25 + "..."));
    // Cut first, trimmed then; and never inside a character.
    EXPECT_THAT(lines(Field::Comment, std::string(25, ' ') + "x"), testing::EndsWith("\n..."));
    std::string umlauts;
    for (int i = 0; i < 26; ++i)
        umlauts += "ü";
    EXPECT_THAT(lines(Field::Comment, umlauts), testing::EndsWith(umlauts.substr(0, 50) + "..."));
    EXPECT_THAT(lines(Field::Comment, umlauts.substr(0, 50)), testing::EndsWith("\n" + umlauts.substr(0, 50)));
}

class MarkerCommands : public testing::Test {
protected:
    MarkerCommands()
    {
        for (const Channel channel : {Channel::RF, Channel::TCP}) {
            p.Position(channel, "A", 1, 2);
            p.Position(channel, "B", 3, 4);
        }
    }
    std::map<std::string, int> Balloons()
    {
        std::map<std::string, int> balloons;
        for (const Pushpin& pin : p.TheMap().AllRecords())
            balloons[pin.Name()] = pin.BalloonState();
        return balloons;
    }
    const std::string& Text(Setting setting) const { return SettingText(p.main.Settings, setting); }

    TestProgram p;
};

TEST_F(MarkerCommands, HideAllAndShowAll)
{
    p.main.frmImport.bFLShow = true;
    mnuHideAll_Click(p.main);
    EXPECT_THAT(Balloons(), UnorderedElementsAre(Pair("A(r)", 0), Pair("B(r)", 0), Pair("A(t)", 0), Pair("B(t)", 0)));
    EXPECT_EQ(Text(Setting::ShowRFNames), "0");
    EXPECT_EQ(Text(Setting::ShowTCPNames), "0");
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 0);
    EXPECT_TRUE(p.main.frmImport.bFLShow); // Left alone.

    SetTrackList(p.main.Of(Channel::RF), "TRACKED");
    p.Position(Channel::RF, "TRACKED", 1, 2);
    p.Position(Channel::RF, "PLAIN", 1, 2);
    EXPECT_EQ(p.Marker("TRACKED(r)")->BalloonState(), 0);
    EXPECT_EQ(p.Marker("PLAIN(r)")->BalloonState(), 0);
    mnuShowAll_Click(p.main);
    EXPECT_EQ(p.Marker("PLAIN(r)")->BalloonState(), 1);
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 1);
    EXPECT_FALSE(p.main.sbStatusBar.IsProgressVisible());
    EXPECT_EQ(p.yield.calls, 0);
}

// Few stations on a big map are looked up, else the map is walked; either way only the folder's own are touched.
TEST_F(MarkerCommands, AFolderHidesItsOwnOnly)
{
    p.Marker("A(r)")->SetNote("TCP, of another channel");
    p.Select("RF");
    mnuHideFolderStations_Click(p.main); // 2 nodes, 4 markers.
    EXPECT_THAT(Balloons(), UnorderedElementsAre(Pair("A(r)", 1), Pair("B(r)", 0), Pair("A(t)", 1), Pair("B(t)", 1)));
    EXPECT_EQ(Text(Setting::ShowRFNames), "0");
    EXPECT_EQ(Text(Setting::ShowTCPNames), "1");
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 1);

    p.main.frmTcp.bAddTCPSymbol = false;
    for (const char* call : {"C", "D", "E"})
        p.Position(Channel::TCP, call, 1, 2); // Nodes without markers.
    p.Marker("A(t)")->SetNote("RF, of another channel");
    p.Marker("A(r)")->SetNote("RF");
    p.Select("TCP");
    mnuHideFolderStations_Click(p.main); // 5 nodes, 4 markers.
    EXPECT_THAT(Balloons(), UnorderedElementsAre(Pair("A(r)", 1), Pair("B(r)", 0), Pair("A(t)", 1), Pair("B(t)", 0)));
    mnuShowFolderStations_Click(p.main);
    EXPECT_EQ(Text(Setting::ShowTCPNames), "1");
    EXPECT_EQ(p.Marker("B(t)")->BalloonState(), 1);

    AddChannelTree(p.Tree(), Channel::FL);
    p.Select("FL");
    mnuHideFolderStations_Click(p.main);
    EXPECT_FALSE(p.main.frmImport.bFLShow);
    p.Select("RFPositions"); // No root: nothing.
    mnuShowFolderStations_Click(p.main);
    EXPECT_EQ(Text(Setting::ShowRFNames), "0");
}

TEST_F(MarkerCommands, ViewPositionMakesOrMovesTheMarkerAndCentresTheMap)
{
    p.main.commDialog.bAddRFSymbol = false;
    p.Position(Channel::RF, "N0CALL", 48, 11, "Van");
    p.Select("RFPositionsN0CALL");
    p.main.window.rightView = RightView::Inbox;
    mnuViewPosition_Click(p.main);
    Pushpin pin = *p.Marker("N0CALL(r)");
    EXPECT_EQ(pin.BalloonState(), 1);
    EXPECT_EQ(pin.Symbol(), 87);
    EXPECT_THAT(pin.Note(), testing::StartsWith("RF, 2026-11-22"));
    EXPECT_FALSE(p.Node("RFPositionsN0CALL")->IsBold());
    EXPECT_EQ(p.main.window.rightView, RightView::Map);
    EXPECT_NEAR(p.TheMap().View().centre.lat, 48, 1e-9);

    pin.SetBalloonState(0);
    p.Position(Channel::RF, "N0CALL", 49, 12, "Car"); // Not added, so not moved.
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{48, 11}));
    EXPECT_TRUE(p.Node("RFPositionsN0CALL")->IsBold());
    mnuViewPosition_Click(p.main);
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{49, 12}));
    EXPECT_EQ(pin.Symbol(), 82);
    EXPECT_EQ(pin.BalloonState(), 0); // Only a new one is told to show.
}

TEST_F(MarkerCommands, ViewPositionWithoutAPositionSaysSo)
{
    p.Sink(Channel::RF).ReportStatus({"N0CALL", "APRS", "", kNoPosition, kNoPosition, "x"});
    const GeoPoint before = p.TheMap().View().centre;
    p.Select("RFStatusN0CALL");
    mnuViewPosition_Click(p.main);
    EXPECT_THAT(p.prompts.messages, ElementsAre("No position report available for station N0CALL"));
    EXPECT_EQ(p.TheMap().View().centre, before);
    EXPECT_TRUE(p.Node("RFStatusN0CALL")->IsBold());

    p.Position(Channel::RF, "FAR", 95, 11); // A place that the map does not have: without a word.
    p.Select("RFPositionsFAR");
    mnuViewPosition_Click(p.main);
    EXPECT_EQ(p.prompts.messages.size(), 1U);
    EXPECT_FALSE(p.Marker("FAR(r)"));
}

TEST_F(MarkerCommands, ViewMyPositionShowsTheOwnMarker)
{
    mnuViewMyPosition_Click(p.main); // Without a position: nothing.
    EXPECT_EQ(p.MarkerNames().size(), 4U);
    SetSetting(p.main.Settings, Setting::Call, "N9CALL");
    SetSetting(p.main.Settings, Setting::Lat, "48.5");
    SetSetting(p.main.Settings, Setting::Lon, "11");
    mnuViewMyPosition_Click(p.main);
    SetSetting(p.main.Settings, Setting::Lat, "49");
    mnuViewMyPosition_Click(p.main);
    EXPECT_EQ(p.MarkerNames().size(), 5U);
    EXPECT_EQ(p.Marker("N9CALL")->Symbol(), kMyStationSymbol);
    EXPECT_EQ(p.Marker("N9CALL")->BalloonState(), 1);
    EXPECT_NEAR(p.TheMap().View().centre.lat, 49, 1e-9);
}

// With no marker ever added a walk returns at once: not even a moment's wait pointer.
TEST(MarkerWalk, IsNothingOnAnEmptyMap)
{
    TestProgram p;
    int changes = 0;
    const auto watch = p.main.sbStatusBar.Changed.Observe([&] { ++changes; });
    WalkMarkers(p.main, [](Pushpin&) { FAIL(); });
    EXPECT_EQ(changes, 0);
    p.Position(Channel::RF, "A", 1, 2);
    p.Position(Channel::RF, "B", 1, 2);
    std::vector<int> seen;
    WalkMarkers(p.main, [&](Pushpin& pin) {
        seen.push_back(p.main.sbStatusBar.Progress());
        pin.Delete(); // What is walked may go.
    });
    EXPECT_THAT(seen, ElementsAre(0, 50));
    EXPECT_EQ(p.TheMap().RecordCount(), 0);
    EXPECT_GT(changes, 0);
    EXPECT_FALSE(p.main.sbStatusBar.IsWaitPointer());
}

} // namespace
} // namespace ruvenmark
