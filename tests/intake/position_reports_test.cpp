#include "map/marker_names.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>

#include <tuple>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ReportPos, IsFiledInTreeRecordMarkerAndNote)
{
    TestProgram p;
    p.Position(Channel::TCP, "N0CALL-9", 48.5, -11.25, "Car", "on the road");

    const TreeNode* const station = p.Node("TCPPositionsN0CALL-9");
    EXPECT_THAT(p.ChildTexts(station->Key()), ElementsAre("Lat: 48.5°", "Lon: -11.25°", "Path: WIDE1-1,WIDE2-1",
                                                          "on the road", "Received: 2026-11-22 20:15:03"));
    std::string images = p.Image(station->Key());
    for (const auto& fact : station->Children()) {
        images += ' ' + p.Image(fact->Key());
        EXPECT_FALSE(fact->IsBold());
    }
    EXPECT_EQ(images, "Car Parallel Parallel Path Info Received");
    EXPECT_TRUE(station->IsBold());
    EXPECT_EQ(p.Text("TCPPositions"), "Positions (1)");
    EXPECT_EQ(p.Text("TCP"), "TCP reports (1)");
    std::string record;
    for (const auto& [field, text] : *p.main.Of(Channel::TCP).Stations.Find("N0CALL-9"))
        record += std::string(FieldName(field)) + '=' + std::string(text) + ' ';
    EXPECT_EQ(record, "Call=N0CALL-9 Lat=48.5 Lon=-11.25 PositionPath=WIDE1-1,WIDE2-1 Symbol=Car Comment=on the road "
                      "PositionReceived=2026-11-22 20:15:03 ");
    EXPECT_EQ(p.Marker("N0CALL-9(t)")->Symbol(), 82);
    EXPECT_EQ(p.Note("N0CALL-9(t)"), "TCP, 2026-11-22 20:15:03\r\nWIDE1-1,WIDE2-1\r\n48.5°, -11.25°\r\non the road");
}

// The three handlers are one behaviour: a mix-up of a channel's own switch, setting or prefix shows here.
TEST(ReportPos, EachChannelHasItsOwnSwitchesAndStores)
{
    for (const Channel off : kChannels) {
        TestProgram p;
        AddChannelTree(p.Tree(), Channel::FL);
        SetSetting(p.main.Settings, Setting::ShowRFNames, off == Channel::RF ? "0" : "1");
        SetSetting(p.main.Settings, Setting::ShowTCPNames, off == Channel::TCP ? "0" : "1");
        p.main.frmImport.bFLShow = off != Channel::FL;
        for (const Channel channel : kChannels) {
            p.Position(channel, "N0CALL", 1, 2);
            EXPECT_EQ(p.Marker(MarkerName(Traits(channel).word, "N0CALL"))->BalloonState(), channel == off ? 0 : 1);
        }
        p.main.commDialog.bAddRFSymbol = off != Channel::RF;
        p.main.frmTcp.bAddTCPSymbol = off != Channel::TCP;
        p.main.frmImport.bFLAdd = off != Channel::FL;
        for (const Channel channel : kChannels) {
            p.Position(channel, "N1CALL", 1, 2);
            EXPECT_EQ(p.Marker(MarkerName(Traits(channel).word, "N1CALL")).has_value(), channel != off);
            EXPECT_EQ(p.RecordText(channel, "N1CALL", Field::Lat), "1"); // Filed all the same.
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
    // An empty comment is no news for the tree, but the record and the note hold the last report.
    EXPECT_THAT(p.ChildTexts("RFPositionsN0CALL"), testing::IsSupersetOf({"first", "Received: 2026-11-22 20:16:03"}));
    EXPECT_EQ(p.RecordText(Channel::RF, "N0CALL", Field::Comment), "");
    EXPECT_THAT(pin.Note(), testing::EndsWith("48.001°, 11°"));

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

    SetSetting(p.main.Settings, Setting::ShowRFNames, "never"); // Fails between the marker and its symbol.
    p.Position(Channel::RF, "UNTRACKED", 1, 2);
    EXPECT_EQ(p.Marker("UNTRACKED(r)")->Symbol(), kDefaultSymbol);
    EXPECT_THAT(p.Note("UNTRACKED(r)"), testing::StartsWith("RF, "));
}

TEST(ReportPos, SoundsForEachReportOfATrackedStation)
{
    TestProgram p;
    SetTrackList(p.main.Of(Channel::RF), "N0CALL");
    SetSetting(p.main.Settings, Setting::TrackWaveFile, "/ding.wav");
    p.Position(Channel::RF, "N0CALL", 1, 2); // The file is not there.
    p.files.texts["/ding.wav"] = "RIFF";
    p.Position(Channel::RF, "N0CALL", 1, 2); // Not moved.
    p.Position(Channel::RF, "N0CALL", 2, 2);
    p.Position(Channel::RF, "N1CALL", 2, 2);  // Not tracked.
    p.Position(Channel::TCP, "N0CALL", 2, 2); // Not tracked there.
    SetSetting(p.main.Settings, Setting::PlayTrack, "False");
    p.Position(Channel::RF, "N0CALL", 2, 2);
    EXPECT_THAT(p.sound.played, ElementsAre("/ding.wav", "/ding.wav"));
}

// Only the tracking dictionaries know a call trimmed and in upper case.
TEST(ReportPos, CallsAreFiledAsReportedAndTrackedNormalised)
{
    TestProgram p;
    const ChannelState& rf = p.main.Of(Channel::RF);
    SetTrackList(p.main.Of(Channel::RF), "n0call");
    for (const char* call : {"N0CALL", " N0call "})
        for (const double lat : {1, 3})
            p.Position(Channel::RF, call, lat, 2);
    EXPECT_EQ(rf.Tracked.Count(), 1U);
    EXPECT_EQ(rf.TrackVisible.Count(), 1U);
    EXPECT_EQ(rf.Stations.Count(), 2U);
    EXPECT_EQ(rf.TrackMarkers.Count(), 2U);
    EXPECT_EQ(p.Text("RFPositions N0call "), " N0call ");
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(r)*", "N0CALL(r)", " N0call (r)*", " N0call (r)"));
}

// The station "N0CALLLat" has the joined key of a fact of "N0CALL": each keeps its own node, and the key finds the
// station.
TEST(ReportPos, ACallThatEndsInAFactWordIsAStationOfItsOwn)
{
    for (const bool bFactFirst : {true, false}) {
        TestProgram p;
        for (const bool bFact : {bFactFirst, !bFactFirst})
            p.Position(Channel::TCP, bFact ? "N0CALL" : "N0CALLLat", bFact ? 1 : 3, 4);
        EXPECT_EQ(p.Text("TCPPositionsN0CALLLat"), "N0CALLLat");
        EXPECT_EQ(p.Text("TCPPositionsN0CALLLatLat"), "Lat: 3°");
        EXPECT_EQ(p.Text("TCPPositions"), "Positions (2)");
        p.Position(Channel::TCP, "N0CALL", 5, 6);
        EXPECT_THAT(p.ChildTexts("TCPPositionsN0CALL"), testing::Contains("Lat: 5°"));
        RemoveStation(p.main, Channel::TCP, "N0CALL", kPositions);
        EXPECT_EQ(p.ChildTexts("TCPPositions"), std::vector<std::string>{"N0CALLLat"});
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
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Speed), "(not set)");

    p.Position(Channel::TCP, "N0CALL", 1, 2, "Plane");
    Ext({.altitude = 2000});
    EXPECT_EQ(p.Image("TCPPositionsN0CALL"), "Plane"); // No image leaves the one that stands.
    EXPECT_THAT(p.Note("N0CALL(t)"), testing::EndsWith("1°, 2°\r\n2000 ft,"));
}

TEST_F(Movement, ValuesAreNearestWithHalvesToEvenAndNeverCut)
{
    const std::pair<Values, std::vector<std::string>> kReports[] = {
        {{2.5, 10, 359.5}, {"Altitude: 2 feet", "Speed: 12 mph", "Course: 360°"}}, // 11.5 mph
        {{123456, 100000, 0.5}, {"Altitude: 123456 feet", "Speed: 115000 mph", "Course: 0°"}},
        {{-0.3}, {"Altitude: 0 feet", "Speed: 115000 mph", "Course: 0°"}}, // No "-0"; what is not given stays.
        {{-998.7}, {"Altitude: -999 feet", "Speed: 115000 mph", "Course: 0°"}}};
    for (const auto& [values, facts] : kReports) {
        Ext(values);
        EXPECT_EQ(p.ChildTexts("TCPPositionsN0CALL"), facts);
    }
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Speed), "115000");
}

TEST_F(Movement, OnlyAMovingStationIsColoured)
{
    const std::tuple<const char*, Values, std::uint32_t> kColors[] = {{"1", {.speed = 0.0051}, 255},
                                                                      {"1", {.speed = 0.005}, 0},
                                                                      {"4", {.speed = 5}, 16711680},
                                                                      {"4", {.altitude = 5}, 0},
                                                                      {"8", {.speed = 5}, 0}}; // Outside the table.
    for (const auto& [index, values, color] : kColors) {
        SetSetting(p.main.Settings, Setting::MobileColor, index);
        Ext(values);
        EXPECT_EQ(p.Node("TCPPositionsN0CALL")->Color(), color) << index;
    }
}

} // namespace
} // namespace ruvenmark
