#include "map/marker_names.h"
#include "map/markers.h"
#include "tracking/track_lines.h"
#include "tracks_fixture.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using TrackCommands = Tracks;

// The trail is known under the call as it was reported, whether it shows under that in upper case.
TEST_F(TrackCommands, AHiddenTrailGrowsUnseenUntilItIsShown)
{
    for (const std::string call : {"N0CALL", "n0call"}) {
        p.main.mpCtrl.NewMap(kRegionEurope);
        const auto at = [&](double lat) { p.Position(Channel::TCP, call, lat, 11); };
        const auto markers = [&](const char* balloon) {
            const std::string point = call + "(t)*=" + balloon;
            return ElementsAre(point, point, call + "(t)=1");
        };
        at(48);
        at(49);
        p.Select("TCPPositions" + call);
        mnuHideStationTrack_Click(p.main);
        at(50);
        EXPECT_THAT(Markers(), markers("0"));
        ASSERT_EQ(Lines().size(), 2U);
        for (const ShapeData& line : Lines()) {
            EXPECT_FALSE(line.bVisible || line.bBeginArrowhead || line.bEndArrowhead);
            EXPECT_EQ(line.weight, 0);
        }
        Set(Setting::TrackLineSize, "7");
        Set(Setting::TrackLineStyle, "3");
        mnuShowStationTrack_Click(p.main);
        EXPECT_THAT(Markers(), markers("1"));
        for (const ShapeData& line : Lines()) {
            EXPECT_TRUE(line.bVisible && line.bBeginArrowhead && line.bEndArrowhead);
            EXPECT_EQ(line.weight, 11);
        }
    }
    EXPECT_EQ(Tcp().TrackVisible.Count(), 1U);
    p.Position(Channel::TCP, "N1CALL", 1, 2); // Hidden ahead of the first move.
    p.Select("TCPPositionsN1CALL");
    mnuHideStationTrack_Click(p.main);
    EXPECT_EQ(*Tcp().TrackVisible.Find("N1CALL"), false);
}

// What the operator deleted on the map is no reason to leave the rest of a trail as it was.
TEST_F(TrackCommands, ShowAndHideGoOnPastWhatTheMapHasLost)
{
    for (const double lat : {48.0, 49.0, 50.0})
        At(lat);
    Tcp().TrackMarkers.Find("N0CALL")->front().Delete();
    Tcp().TrackLines.Find("N0CALL")->front().Delete();
    SelectStation();
    mnuHideStationTrack_Click(p.main);
    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=0", "N0CALL(t)=1"));
    ASSERT_EQ(Lines().size(), 1U);
    EXPECT_FALSE(Lines()[0].bVisible);
}

TEST_F(TrackCommands, WithoutLinesATrackHasPointsOnly)
{
    mnuToolsShowTrackLine_Click(p.main);
    At(48);
    At(49);
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_TRUE(Tcp().TrackLines.IsEmpty());
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
}

TEST_F(TrackCommands, StartAndStopTouchEveryNameThatHoldsTheCall)
{
    Set(Setting::ShowRFNames, "0");
    Set(Setting::ShowTCPNames, "0");
    for (const char* call : {"N5", "n5-7", "N6", "XN5X"})
        p.Position(Channel::RF, call, 1, 2);
    p.Position(Channel::TCP, "N5", 1, 2);
    p.Select("RFPositionsN5");
    mnuStartTrack_Click(p.main);
    EXPECT_TRUE(p.main.Of(Channel::RF).Tracked.Contains("N5"));
    EXPECT_THAT(Markers(), ElementsAre("N5(r)=1", "n5-7(r)=1", "N6(r)=0", "XN5X(r)=1", "N5(t)=1"));

    // The last step wins: names of RF and TCP are hidden whatever their settings say.
    Set(Setting::ShowRFNames, "1");
    mnuStopTrack_Click(p.main);
    EXPECT_FALSE(p.main.Of(Channel::RF).Tracked.Contains("N5"));
    EXPECT_THAT(Markers(), ElementsAre("N5(r)=0", "n5-7(r)=0", "N6(r)=0", "XN5X(r)=0", "N5(t)=0"));

    AddChannelTree(p.Tree(), Channel::FL);
    p.Position(Channel::FL, "N5", 1, 2);
    p.Select("FLPositionsN5");
    for (const bool bShow : {true, false}) { // FL follows its own.
        p.main.frmImport.bFLShow = bShow;
        mnuStopTrack_Click(p.main);
        EXPECT_EQ(p.Marker("N5(f)")->BalloonState(), bShow ? 1 : 0);
    }
}

TEST_F(TrackCommands, ShowTrackedStationsOnly)
{
    At(48);
    At(49);
    p.Position(Channel::RF, "n0call", 1, 2); // Tracked on TCP: any list counts, and so does any case.
    p.Position(Channel::RF, "N1CALL", 1, 2);
    p.TheMap().AddPushpin(p.TheMap().GetLocation(1, 2), " N0CALL ");
    p.main.tracking.NewMarkerBalloon = 0;
    mnuShowTrack_Click(p.main);
    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=1", "N0CALL(t)=1", "n0call(r)=1", "N1CALL(r)=0", " N0CALL =1"));
    EXPECT_EQ(SettingText(p.main.Settings, Setting::ShowRFNames), "0");
    EXPECT_EQ(SettingText(p.main.Settings, Setting::ShowTCPNames), "0");
    EXPECT_FALSE(p.main.frmImport.bFLShow);
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 1);
}

// The map may be replaced under a track: what is kept of it is dead, and every command copes.
TEST_F(TrackCommands, OutliveTheirMapWithoutHarm)
{
    At(48);
    At(49);
    p.main.mpCtrl.NewMap(kRegionEurope);
    SelectStation();
    mnuHideStationTrack_Click(p.main);
    mnuShowStationTrack_Click(p.main);
    At(50);
    At(51);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
    EXPECT_EQ(Tcp().TrackMarkers.Find("N0CALL")->size(), 2U);
    p.prompts.answers = {Answer::Yes};
    mnuRemoveAllTracks_Click(p.main);
    EXPECT_THAT(p.prompts.questions, ElementsAre("Are you sure you want to remove all station tracks?"));
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)"));
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_TRUE(Tcp().TrackMarkers.IsEmpty() && Tcp().TrackLines.IsEmpty());
}

// The question shows the call in upper case; what is removed first is the track of that very call.
TEST_F(TrackCommands, RemovingFindsATrackInEitherCase)
{
    for (const char* call : {"n0call", "N0CALL"})
        for (const double lat : {48.0, 49.0})
            p.Position(Channel::TCP, call, lat, 11);
    p.Select("TCPPositionsn0call");
    p.prompts.answers = {Answer::No, Answer::Yes, Answer::Yes};
    mnuRemoveTrack_Click(p.main);
    EXPECT_THAT(p.prompts.questions, ElementsAre("Are you sure you want to remove track for N0CALL?"));
    EXPECT_EQ(p.MarkerNames().size(), 4U);
    mnuRemoveTrack_Click(p.main);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("n0call(t)*", "n0call(t)", "N0CALL(t)"));
    mnuRemoveTrack_Click(p.main); // None is left there: the station's own.
    EXPECT_THAT(p.MarkerNames(), ElementsAre("n0call(t)", "N0CALL(t)"));
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_TRUE(Tcp().TrackMarkers.IsEmpty() && Tcp().TrackLines.IsEmpty());

    p.Position(Channel::TCP, "N0CALL", 50, 11); // A track may be of lines alone.
    Tcp().TrackMarkers.Clear();
    p.prompts.answers = {Answer::Yes};
    mnuRemoveTrack_Click(p.main);
    EXPECT_THAT(Lines(), IsEmpty());
}

} // namespace
} // namespace ruvenmark
