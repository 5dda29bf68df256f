#include "map/edit_commands.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "map/selection.h"
#include "map/station_notes.h"
#include "map/symbols.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>

#include <chrono>
#include <tuple>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

std::string NoteOf(std::initializer_list<std::pair<Field, std::string>> fields)
{
    Record record;
    for (const auto& [field, text] : fields)
        record.Set(field, text);
    return MarkerNote("TCP", record);
}

TEST(MarkerNote, HasUpToSixLines)
{
    EXPECT_EQ(NoteOf({}), "TCP, \r\n°, °");
    EXPECT_EQ(NoteOf({{Field::PositionReceived, "T"},
                      {Field::PositionPath, "WIDE1-1"},
                      {Field::Lat, "1"},
                      {Field::Lon, "-2.5"},
                      {Field::Alt, "300"},
                      {Field::Speed, "40"},
                      {Field::Course, "90"},
                      {Field::Power, "25"},
                      {Field::Height, "20"},
                      {Field::Gain, "3"},
                      {Field::Directivity, "Omni"},
                      {Field::Comment, " hello "}}),
              "TCP, T\r\nWIDE1-1\r\n1°, -2.5°\r\n300 ft, 40 mph, 90°\r\n25 watts, 20 ft, 3 db, Omni\r\nhello");
}

// Only blanks at the ends go, so the comma of the last piece stays. Long texts are cut first, trimmed then, and never
// inside a character.
TEST(MarkerNote, PiecesKeepTheirCommasAndLongTextsAreCut)
{
    std::string umlauts;
    for (int i = 0; i < 25; ++i)
        umlauts += "ü";
    const std::tuple<Field, std::string, std::string> kLastLines[] = {
        {Field::Alt, "300", "300 ft,"},
        {Field::Course, "90", "90°"},
        {Field::Gain, "3", "3 db,"},
        {Field::Directivity, " Omni ", "Omni"},
        {Field::Directivity, "  ", "°, °"},
        {Field::Comment, "   ", "°, °"},
        {Field::Comment, std::string(25, 'c'), std::string(25, 'c')},
        {Field::Comment, std::string(26, 'c'), std::string(25, 'c') + "..."},
        {Field::Comment, std::string(25, ' ') + "x", "..."},
        {Field::Comment, umlauts, umlauts},
        {Field::Comment, umlauts + "ü", umlauts + "..."}};
    for (const auto& [field, text, line] : kLastLines)
        EXPECT_THAT(NoteOf({{field, text}}), testing::EndsWith("\n" + line));
    const std::string path(22, 'p');
    EXPECT_THAT(NoteOf({{Field::PositionPath, path}}), testing::HasSubstr("\n" + path + "\r"));
    EXPECT_THAT(NoteOf({{Field::PositionPath, path + "q"}}), testing::HasSubstr("\n" + path + "...\r"));
}

// A picture of no word, or of none that is known, is the one for all others.
TEST(SymbolId, IsThePictureOfTheWordAndOneForAnyOther)
{
    EXPECT_EQ(SymbolId("Digi"), 169);
    EXPECT_EQ(SymbolId("Num8"), 215);
    for (const char* word : {"", "car", "Car ", "Num9", "Zeppelin"})
        EXPECT_EQ(SymbolId(word), kDefaultSymbol) << word;
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
    // "A(r)=1 " of all markers, oldest first.
    std::string Balloons()
    {
        std::string balloons;
        for (const Pushpin& pin : p.TheMap().AllRecords())
            balloons += pin.Name() + '=' + std::to_string(pin.BalloonState()) + ' ';
        return balloons;
    }
    const std::string& Text(Setting setting) const { return SettingText(p.main.Settings, setting); }

    TestProgram p;
};

TEST_F(MarkerCommands, HideAllAndShowAll)
{
    p.main.frmImport.bFLShow = true;
    mnuHideAll_Click(p.main);
    EXPECT_EQ(Balloons(), "A(r)=0 B(r)=0 A(t)=0 B(t)=0 ");
    EXPECT_EQ(Text(Setting::ShowRFNames) + Text(Setting::ShowTCPNames), "00");
    EXPECT_TRUE(p.main.frmImport.bFLShow); // Left alone.

    SetTrackList(p.main.Of(Channel::RF), "TRACKED");
    for (const char* newcomer : {"TRACKED", "PLAIN"}) {
        p.Position(Channel::RF, newcomer, 1, 2);
        EXPECT_EQ(p.Marker(std::string(newcomer) + "(r)")->BalloonState(), 0);
    }
    mnuShowAll_Click(p.main);
    EXPECT_EQ(Balloons(), "A(r)=1 B(r)=1 A(t)=1 B(t)=1 TRACKED(r)=1 PLAIN(r)=1 ");
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 1);
    EXPECT_EQ(p.yield.calls, 0);
}

// Few stations on a big map are looked up, else the map is walked; either way only the folder's own are touched.
TEST_F(MarkerCommands, AFolderHidesItsOwnOnly)
{
    p.Marker("A(r)")->SetNote("TCP, of another channel");
    p.Select("RF");
    mnuHideFolderStations_Click(p.main); // 2 nodes, 4 markers.
    EXPECT_EQ(Balloons(), "A(r)=1 B(r)=0 A(t)=1 B(t)=1 ");
    EXPECT_EQ(Text(Setting::ShowRFNames) + Text(Setting::ShowTCPNames), "01");
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 1);

    p.main.frmTcp.bAddTCPSymbol = false;
    for (const char* call : {"C", "D", "E"})
        p.Position(Channel::TCP, call, 1, 2); // Nodes without markers.
    p.Marker("A(t)")->SetNote("RF, of another channel");
    p.Marker("A(r)")->SetNote("RF");
    p.Select("TCP");
    mnuHideFolderStations_Click(p.main); // 5 nodes, 4 markers.
    EXPECT_EQ(Balloons(), "A(r)=1 B(r)=0 A(t)=1 B(t)=0 ");
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

TEST_F(MarkerCommands, ViewPositionMakesOrMovesTheMarker)
{
    p.main.commDialog.bAddRFSymbol = false;
    p.Position(Channel::RF, "N0CALL", 48, 11, "Van");
    p.Select("RFPositionsN0CALL");
    mnuViewPosition_Click(p.main);
    Pushpin pin = *p.Marker("N0CALL(r)");
    EXPECT_EQ(pin.BalloonState(), 1);
    EXPECT_EQ(pin.Symbol(), 87);
    EXPECT_THAT(pin.Note(), testing::StartsWith("RF, 2026-11-22"));
    EXPECT_FALSE(p.Node("RFPositionsN0CALL")->IsBold());

    pin.SetBalloonState(0);
    p.Position(Channel::RF, "N0CALL", 49, 12, "Car"); // Not added, so not moved.
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{48, 11}));
    mnuViewPosition_Click(p.main);
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{49, 12}));
    EXPECT_EQ(pin.Symbol(), 82);
    EXPECT_EQ(pin.BalloonState(), 0); // Only a new one is told to show.
}

TEST_F(MarkerCommands, ViewPositionWithoutAPositionSaysSo)
{
    p.Sink(Channel::RF).ReportStatus({"N0CALL", "APRS", "", kNoPosition, kNoPosition, "x"});
    p.Position(Channel::RF, "FAR", 95, 11); // A place that the map does not have: without a word.
    const GeoPoint before = p.TheMap().View().centre;
    for (const char* key : {"RFStatusN0CALL", "RFPositionsFAR"}) {
        p.Select(key);
        mnuViewPosition_Click(p.main);
    }
    EXPECT_THAT(p.prompts.messages, ElementsAre("No position report available for station N0CALL"));
    EXPECT_EQ(p.TheMap().View().centre, before);
    EXPECT_FALSE(p.Marker("FAR(r)"));
}

TEST_F(MarkerCommands, ViewMyPositionShowsTheOwnMarker)
{
    mnuViewMyPosition_Click(p.main); // Without a position: nothing.
    EXPECT_EQ(p.MarkerNames().size(), 4U);
    SetSetting(p.main.Settings, Setting::Call, "N9CALL");
    SetSetting(p.main.Settings, Setting::Lon, "11");
    for (const char* lat : {"48.5", "49"}) {
        SetSetting(p.main.Settings, Setting::Lat, lat);
        mnuViewMyPosition_Click(p.main);
    }
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
    std::vector<int> seen;
    const auto walk = [&] {
        WalkMarkers(p.main, [&](Pushpin& pin) {
            seen.push_back(p.main.sbStatusBar.Progress());
            pin.Delete(); // What is walked may go.
        });
    };
    walk();
    EXPECT_EQ(changes, 0);
    for (const char* call : {"A", "B"})
        p.Position(Channel::RF, call, 1, 2);
    walk();
    EXPECT_THAT(seen, ElementsAre(0, 50));
    EXPECT_FALSE(p.main.sbStatusBar.IsWaitPointer());
}

class StationNotesTest : public testing::Test {
protected:
    void SetUp() override { p.Position(Channel::RF, "N0CALL", 48, 11, "Van", "at home"); }
    std::string Note() const { return p.Note("N0CALL(r)"); }

    TestProgram p;
};

// Made when it is read, a note must still be of the last report: not of one before it.
TEST_F(StationNotesTest, AreOfTheLastReport)
{
    EXPECT_EQ(Note(), "RF, 2026-11-22 20:15:03\r\nWIDE1-1,WIDE2-1\r\n48°, 11°\r\nat home");
    p.clock.Advance(std::chrono::seconds(60));
    p.Position(Channel::RF, "N0CALL", 49, 11, "Van", "away");
    EXPECT_EQ(Note(), "RF, 2026-11-22 20:16:03\r\nWIDE1-1,WIDE2-1\r\n49°, 11°\r\naway");
    EXPECT_TRUE(p.Marker("N0CALL(r)")->NoteBeginsWith(Note()));
    EXPECT_FALSE(p.Marker("N0CALL(r)")->NoteBeginsWith("FL"));
}

// A note that is only made of the record is lost with it.
TEST_F(StationNotesTest, OutlastTheRecord)
{
    for (const bool bAll : {false, true}) {
        const std::string note = Note();
        if (bAll)
            ForgetStations(p.main, Channel::RF);
        else
            ForgetStation(p.main, Channel::RF, "N0CALL");
        EXPECT_EQ(Note(), note);
        p.Hear(Channel::RF, "N0CALL>APRS:>on the air"); // A new record, of the status alone.
        EXPECT_EQ(Note(), note);
        p.Position(Channel::RF, "N0CALL", 50, 12);
        EXPECT_THAT(Note(), EndsWith("50°, 12°"));
    }
}

// What the note is worked out by is the name: a pin that is renamed keeps what it had.
TEST_F(StationNotesTest, StayWithThePinAndGoWhereItIsCopied)
{
    const std::string note = Note();
    Pushpin pin = *p.Marker("N0CALL(r)");
    SelectOnMap(p.main, pin);
    mnuEditCopy_Click(p.main);
    EXPECT_THAT(p.desktop.clipboard, HasSubstr("at home"));
    p.main.mpCtrl.SaveMapAs("/notes.ptm");
    EXPECT_THAT(p.files.texts["/notes.ptm"], HasSubstr("at home"));

    pin.SetName("Home");
    EXPECT_EQ(pin.Note(), note);
    p.Position(Channel::RF, "N0CALL", 50, 12, "Van", "elsewhere");
    EXPECT_EQ(pin.Note(), note);
    EXPECT_THAT(Note(), EndsWith("elsewhere"));
}

} // namespace
} // namespace ruvenmark
