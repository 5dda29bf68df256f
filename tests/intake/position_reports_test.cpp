#include "map/marker_names.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNow = "2026-11-22 20:15:03";

TEST(ReportPos, IsFiledInTreeRecordMarkerAndNote)
{
    TestProgram p;
    p.Position(Channel::TCP, "N0CALL-9", 48.5, -11.25, "Car", "on the road");

    EXPECT_THAT(p.ChildTexts("TCPPositionsN0CALL-9"), ElementsAre("Lat: 48.5°", "Lon: -11.25°", "Path: WIDE1-1,WIDE2-1",
                                                                  "on the road", std::string("Received: ") + kNow));
    EXPECT_EQ(p.Text("TCPPositionsN0CALL-9"), "N0CALL-9");
    for (const auto& [word, image] :
         {std::pair("", "Car"), std::pair("Lat", "Parallel"), std::pair("Lon", "Parallel"), std::pair("Path", "Path"),
          std::pair("Comment", "Info"), std::pair("Received", "Received")})
        EXPECT_EQ(p.Image(std::string("TCPPositionsN0CALL-9") + word), image) << word;
    EXPECT_TRUE(p.Node("TCPPositionsN0CALL-9")->IsBold());
    EXPECT_FALSE(p.Node("TCPPositionsN0CALL-9Lat")->IsBold());
    EXPECT_EQ(p.Text("TCPPositions"), "Positions (1)");
    EXPECT_EQ(p.Text("TCP"), "TCP reports (1)");

    for (const auto& [field, text] :
         {std::pair(Field::Call, "N0CALL-9"), std::pair(Field::Lat, "48.5"), std::pair(Field::Lon, "-11.25"),
          std::pair(Field::PositionPath, "WIDE1-1,WIDE2-1"), std::pair(Field::Symbol, "Car"),
          std::pair(Field::Comment, "on the road"), std::pair(Field::PositionReceived, kNow)})
        EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL-9", field), text);

    ASSERT_TRUE(p.Marker("N0CALL-9(t)"));
    EXPECT_EQ(p.Marker("N0CALL-9(t)")->Symbol(), 82);
    EXPECT_EQ(p.Note("N0CALL-9(t)"), "TCP, 2026-11-22 20:15:03\r\nWIDE1-1,WIDE2-1\r\n48.5°, -11.25°\r\non the road");
}

// The three handlers are one behaviour: a mix-up of a channel's own switch, setting or prefix shows here.
TEST(ReportPos, EachChannelHasItsOwnSwitchesAndStores)
{
    TestProgram p;
    SetSetting(p.main.Settings, Setting::ShowTCPNames, "0");
    p.main.frmImport.bFLShow = false;
    AddChannelTree(p.Tree(), Channel::FL);
    for (const Channel channel : kChannels)
        p.Position(channel, "N0CALL", 1, 2);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(r)", "N0CALL(t)", "N0CALL(f)"));
    EXPECT_EQ(p.Marker("N0CALL(r)")->BalloonState(), 1);
    EXPECT_EQ(p.Marker("N0CALL(t)")->BalloonState(), 0);
    EXPECT_EQ(p.Marker("N0CALL(f)")->BalloonState(), 0);

    for (const Channel off : kChannels) {
        p.main.commDialog.bAddRFSymbol = off != Channel::RF;
        p.main.frmTcp.bAddTCPSymbol = off != Channel::TCP;
        p.main.frmImport.bFLAdd = off != Channel::FL;
        for (const Channel channel : kChannels) {
            const std::string call = std::string(Traits(off).word) + "OFF";
            p.Position(channel, call, 1, 2);
            const bool bMarker = p.Marker(MarkerName(Traits(channel).word, call)).has_value();
            EXPECT_EQ(bMarker, channel != off) << Traits(channel).word;
            EXPECT_EQ(p.RecordText(channel, call, Field::Lat), "1"); // Filed all the same.
        }
    }
}

TEST(ReportPos, ATrackedNewcomersBalloonFollowsAStateOfItsOwn)
{
    for (const int state : {0, 1}) {
        TestProgram p;
        SetTrackList(p.main.Of(Channel::RF), "TRACKED");
        p.main.tracking.NewMarkerBalloon = state;
        SetSetting(p.main.Settings, Setting::ShowRFNames, state == 0 ? "1" : "0");
        p.Position(Channel::RF, "TRACKED", 1, 2);
        p.Position(Channel::RF, "PLAIN", 1, 2);
        EXPECT_EQ(p.Marker("TRACKED(r)")->BalloonState(), state);
        EXPECT_EQ(p.Marker("PLAIN(r)")->BalloonState(), 1 - state);
    }
}

TEST(ReportPos, AnUntrackedStationMovesAtOnceAndLeavesNothingBehind)
{
    TestProgram p;
    p.Position(Channel::RF, "N0CALL", 48, 11, "Car", "first");
    Pushpin pin = *p.Marker("N0CALL(r)");
    pin.SetBalloonState(0); // Hidden by the operator: a move leaves it so.
    p.clock.Advance(std::chrono::seconds(60));
    p.Position(Channel::RF, "N0CALL", 48.001, 11, "Van", "");

    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(r)"));
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{48.001, 11}));
    EXPECT_EQ(pin.Symbol(), 87);
    EXPECT_EQ(pin.BalloonState(), 0);
    EXPECT_EQ(p.Text("RFPositionsN0CALLReceived"), "Received: 2026-11-22 20:16:03");
    // An empty comment is no news for the tree, but the record and the note hold the last report.
    EXPECT_EQ(p.Text("RFPositionsN0CALLComment"), "first");
    EXPECT_EQ(p.RecordText(Channel::RF, "N0CALL", Field::Comment), "");
    EXPECT_THAT(pin.Note(), testing::EndsWith("48.001°, 11°"));
    EXPECT_EQ(p.Text("RFPositions"), "Positions (1)");

    // With add-to-map off the marker that stands does not move, yet its note is kept up.
    p.main.commDialog.bAddRFSymbol = false;
    p.Position(Channel::RF, "N0CALL", 50, 12);
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{48.001, 11}));
    EXPECT_THAT(pin.Note(), testing::EndsWith("50°, 12°"));
}

// Whatever fails on the map, the tree and the record are written.
TEST(ReportPos, AMapFailureLeavesTreeAndRecord)
{
    TestProgram p;
    SetTrackList(p.main.Of(Channel::RF), "N0CALL");
    SetSetting(p.main.Settings, Setting::TrackWaveFile, "/ding.wav");
    p.files.texts["/ding.wav"] = "RIFF";

    p.Position(Channel::RF, "N0CALL", 95, 11); // No such place.
    EXPECT_THAT(p.MarkerNames(), IsEmpty());
    EXPECT_THAT(p.sound.played, IsEmpty()); // The sound is skipped with the rest of the map work.
    EXPECT_EQ(p.Text("RFPositionsN0CALLLat"), "Lat: 95°");
    EXPECT_EQ(p.RecordText(Channel::RF, "N0CALL", Field::Lat), "95");
    EXPECT_EQ(p.Text("RF"), "RF reports (1)");

    SetSetting(p.main.Settings, Setting::ShowRFNames, "never"); // Fails between the marker and its symbol.
    p.Position(Channel::RF, "UNTRACKED", 1, 2);
    EXPECT_EQ(p.Marker("UNTRACKED(r)")->Symbol(), kDefaultSymbol);
    EXPECT_THAT(p.Note("UNTRACKED(r)"), testing::StartsWith("RF, "));

    SetSetting(p.main.Settings, Setting::PlayTrack, "sometimes");
    p.Position(Channel::RF, "N0CALL", 1, 2);
    EXPECT_EQ(p.RecordText(Channel::RF, "N0CALL", Field::Lat), "1");
}

TEST(ReportPos, SoundsForEachReportOfATrackedStation)
{
    TestProgram p;
    SetTrackList(p.main.Of(Channel::RF), "N0CALL");
    SetSetting(p.main.Settings, Setting::TrackWaveFile, "/ding.wav");
    p.Position(Channel::RF, "N0CALL", 1, 2);
    EXPECT_THAT(p.sound.played, IsEmpty()); // The file is not there.
    p.files.texts["/ding.wav"] = "RIFF";
    p.Position(Channel::RF, "N0CALL", 1, 2); // Not moved.
    p.Position(Channel::RF, "N0CALL", 2, 2);
    p.Position(Channel::RF, "N1CALL", 2, 2);  // Not tracked.
    p.Position(Channel::TCP, "N0CALL", 2, 2); // Not tracked there.
    EXPECT_THAT(p.sound.played, ElementsAre("/ding.wav", "/ding.wav"));
    SetSetting(p.main.Settings, Setting::PlayTrack, "False");
    p.Position(Channel::RF, "N0CALL", 2, 2);
    EXPECT_EQ(p.sound.played.size(), 2U);
}

// Only the tracking dictionaries know a call trimmed and in upper case.
TEST(ReportPos, CallsAreFiledAsReportedAndTrackedNormalised)
{
    TestProgram p;
    p.main.commDialog.bAddRFSymbol = false;
    SetTrackList(p.main.Of(Channel::RF), "n0call");
    for (const char* call : {"N0CALL", "n0call", " N0call "}) {
        p.Position(Channel::RF, call, 1, 2);
        p.Position(Channel::RF, call, 3, 4);
    }
    EXPECT_EQ(p.main.Of(Channel::RF).Tracked.Count(), 1U);
    EXPECT_EQ(p.main.Of(Channel::RF).TrackVisible.Count(), 1U);
    EXPECT_EQ(p.main.Of(Channel::RF).Stations.Count(), 3U);
    EXPECT_EQ(p.main.Of(Channel::RF).TrackMarkers.Count(), 3U);
    EXPECT_EQ(p.Text("RFPositions N0call "), " N0call ");
    EXPECT_THAT(p.MarkerNames(),
                ElementsAre("N0CALL(r)*", "N0CALL(r)", "n0call(r)*", "n0call(r)", " N0call (r)*", " N0call (r)"));
    EXPECT_EQ(p.Text("RFPositions"), "Positions (3)");
}

// The station "N0CALLLat" has the joined key of a fact of "N0CALL": each keeps its own node, and the key finds the
// station.
TEST(ReportPos, ACallThatEndsInAFactWordIsAStationOfItsOwn)
{
    for (const bool bFactFirst : {true, false}) {
        TestProgram p;
        for (const bool bFact : {bFactFirst, !bFactFirst})
            if (bFact)
                p.Position(Channel::TCP, "N0CALL", 1, 2);
            else
                p.Position(Channel::TCP, "N0CALLLat", 3, 4, "Van");
        EXPECT_EQ(p.Text("TCPPositionsN0CALLLat"), "N0CALLLat");
        EXPECT_EQ(p.Text("TCPPositionsN0CALLLatLat"), "Lat: 3°");
        EXPECT_THAT(p.ChildTexts("TCPPositionsN0CALL"), testing::Contains("Lat: 1°"));
        EXPECT_EQ(p.Text("TCPPositions"), "Positions (2)");
        EXPECT_TRUE(p.Marker("N0CALLLat(t)"));
        p.Position(Channel::TCP, "N0CALL", 5, 6);
        EXPECT_THAT(p.ChildTexts("TCPPositionsN0CALL"), testing::Contains("Lat: 5°"));
        RemoveStation(p.main, Channel::TCP, "N0CALL", kPositions);
        EXPECT_EQ(p.Text("TCPPositionsN0CALLLat"), "N0CALLLat");
        EXPECT_EQ(p.Text("TCPPositions"), "Positions (1)");
    }
}

class Movement : public testing::Test {
protected:
    struct Values {
        double altitude = kAbsent, speed = kAbsent, course = kAbsent;
    };
    void Ext(Values values)
    {
        p.Sink(Channel::TCP).ReportPosExt({"N0CALL", "APRS", 1, 2, values.altitude, values.speed, values.course});
    }
    std::string Fact(const char* word) { return p.Text(std::string("TCPPositionsN0CALL") + word); }
    std::uint32_t Color() { return p.Node("TCPPositionsN0CALL")->Color(); }

    TestProgram p;
};

// The first event of a station may be this one.
TEST_F(Movement, AloneMakesNodeRecordAndCountsButNoMarker)
{
    Ext({.altitude = 1000});
    EXPECT_THAT(p.ChildTexts("TCPPositionsN0CALL"), ElementsAre("Altitude: 1000 feet"));
    EXPECT_EQ(p.Image("TCPPositionsN0CALL"), "");
    EXPECT_EQ(p.Image("TCPPositionsN0CALLAltitude"), "Balloon");
    EXPECT_EQ(p.Text("TCP"), "TCP reports (1)");
    EXPECT_THAT(p.MarkerNames(), IsEmpty());
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Call), "N0CALL");
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Alt), "1000");
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Speed), "(not set)");
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Lat), "(not set)");

    p.Position(Channel::TCP, "N0CALL", 1, 2, "Plane");
    Ext({.altitude = 2000});
    EXPECT_EQ(p.Image("TCPPositionsN0CALL"), "Plane"); // No image leaves the one that stands.
    EXPECT_THAT(p.Note("N0CALL(t)"), testing::EndsWith("1°, 2°\r\n2000 ft,"));
}

TEST_F(Movement, ValuesAreNearestWithHalvesToEvenAndNeverCut)
{
    Ext({.altitude = 2.5, .speed = 10, .course = 359.5});
    EXPECT_EQ(Fact("Altitude"), "Altitude: 2 feet");
    EXPECT_EQ(Fact("Speed"), "Speed: 12 mph"); // 11.5
    EXPECT_EQ(Fact("Course"), "Course: 360°");
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Speed), "12");
    Ext({.altitude = 123456, .speed = 100000, .course = 0.5});
    EXPECT_EQ(Fact("Altitude"), "Altitude: 123456 feet");
    EXPECT_EQ(Fact("Speed"), "Speed: 115000 mph");
    EXPECT_EQ(Fact("Course"), "Course: 0°");
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Alt), "123456");
    Ext({.altitude = -0.3}); // Below the sea, yet no "-0".
    EXPECT_EQ(Fact("Altitude"), "Altitude: 0 feet");
    Ext({.altitude = -998.7});
    EXPECT_EQ(Fact("Altitude"), "Altitude: -999 feet");
    EXPECT_EQ(Fact("Speed"), "Speed: 115000 mph"); // What is not given stays.
}

TEST_F(Movement, OnlyAMovingStationIsColoured)
{
    Ext({.speed = 0.0051});
    EXPECT_EQ(Color(), 255U);
    Ext({.speed = 0.005});
    EXPECT_EQ(Color(), 0U);
    SetSetting(p.main.Settings, Setting::MobileColor, "4");
    Ext({.speed = 5});
    EXPECT_EQ(Color(), 16711680U);
    Ext({.altitude = 5});
    EXPECT_EQ(Color(), 0U);
    SetSetting(p.main.Settings, Setting::MobileColor, "8"); // Outside the table.
    Ext({.speed = 5});
    EXPECT_EQ(Color(), 0U);
}

} // namespace
} // namespace ruvenmark
