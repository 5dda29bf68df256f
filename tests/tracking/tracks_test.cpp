#include "map/markers.h"
#include "support/program.h"
#include "tracking/track_lines.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Tracks : public testing::Test {
protected:
    Tracks() { SetTrackList(Tcp(), "N0CALL"); }
    ChannelState& Tcp() { return p.main.Of(Channel::TCP); }
    void At(double lat, double lon = 11) { p.Position(Channel::TCP, "N0CALL", lat, lon); }
    void SelectStation() { p.Select("TCPPositionsN0CALL"); }
    // "name=balloon" of all markers, oldest first.
    std::vector<std::string> Markers()
    {
        std::vector<std::string> markers;
        for (const Pushpin& pin : p.TheMap().AllRecords())
            markers.push_back(pin.Name() + "=" + std::to_string(pin.BalloonState()));
        return markers;
    }
    std::vector<ShapeData> Lines()
    {
        std::vector<ShapeData> lines;
        const auto& shapes = p.TheMap().Shapes();
        for (std::size_t slot = 0; slot < shapes.SlotCount(); ++slot)
            if (shapes.At(slot))
                lines.push_back(*shapes.At(slot));
        return lines;
    }
    void Set(Setting setting, const char* value) { SetSetting(p.main.Settings, setting, value); }

    Program p;
};

TEST_F(Tracks, AMoveLeavesAPointAndALineBehind)
{
    At(48);
    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)=1"));
    const std::string firstNote = p.Note("N0CALL(t)");
    p.clock.Advance(std::chrono::seconds(5));
    p.Position(Channel::TCP, "N0CALL", 49, 12, "Van");

    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=1", "N0CALL(t)=1"));
    const Pushpin point = *p.Marker("N0CALL(t)*"), marker = *p.Marker("N0CALL(t)");
    EXPECT_EQ(point.Location().Point(), (GeoPoint{48, 11}));
    EXPECT_EQ(point.Note(), firstNote); // Keeps its note and picture.
    EXPECT_EQ(point.Symbol(), 82);
    EXPECT_EQ(marker.Symbol(), 87);
    EXPECT_THAT(marker.Note(), testing::StartsWith("TCP, 2026-11-22 20:15:08"));
    const auto lines = Lines();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].from, (GeoPoint{48, 11}));
    EXPECT_EQ(lines[0].to, (GeoPoint{49, 12}));
    EXPECT_EQ(lines[0].weight, 1);
    EXPECT_FALSE(lines[0].bBeginArrowhead);
    EXPECT_TRUE(lines[0].bEndArrowhead);
    EXPECT_EQ(lines[0].foreColor, kDefaultLineColor);
    EXPECT_THAT(*Tcp().TrackMarkers.Find("N0CALL"), ElementsAre(point));
    EXPECT_EQ(Tcp().TrackLines.Find("N0CALL")->size(), 1U);
    EXPECT_EQ(*Tcp().TrackVisible.Find("N0CALL"), true);
}

// By the map's own measure. Near the equator latitudes are fine enough to hit the limit to the last bit.
TEST_F(Tracks, ExactlyTheStepIsNoMoveAndTheNextPlaceIs)
{
    const auto miles = [&](double lat) { return TravelDistance(p.main, 0, 0, lat, 0); };
    double far = 0.001;
    for (double near = 0; std::nextafter(near, far) != far;) {
        const double middle = near + (far - near) / 2;
        (miles(middle) <= kTrackStep ? near : far) = middle;
    }
    const double near = std::nextafter(far, 0);
    ASSERT_EQ(miles(near), kTrackStep);
    At(0, 0);
    At(0, 0); // The same spot.
    p.clock.Advance(std::chrono::seconds(5));
    p.Position(Channel::TCP, "N0CALL", near, 0, "Van");
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)"));
    EXPECT_EQ(p.Marker("N0CALL(t)")->Location().Point(), (GeoPoint{0, 0})); // It does not creep.
    EXPECT_EQ(p.Marker("N0CALL(t)")->Symbol(), 82);
    EXPECT_TRUE(Tcp().TrackMarkers.IsEmpty());
    // Yet tree, record and note hold the last report.
    EXPECT_EQ(p.Text("TCPPositionsN0CALLReceived"), "Received: 2026-11-22 20:15:08");
    EXPECT_THAT(p.Note("N0CALL(t)"), testing::StartsWith("TCP, 2026-11-22 20:15:08"));
    At(far, 0);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
}

// A marker whose note is another channel's, or has none yet, is moved as an untracked one.
TEST_F(Tracks, OnlyAMarkerOfTheChannelStartsATrack)
{
    Pushpin pin = p.TheMap().AddPushpin(p.TheMap().GetLocation(40, 11), "N0CALL(t)");
    At(48);
    EXPECT_EQ(pin.Location().Point(), (GeoPoint{48, 11}));
    pin.SetNote("RF, elsewhere");
    At(49);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)"));
    EXPECT_THAT(pin.Note(), testing::StartsWith("TCP, "));
    At(50);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
}

TEST_F(Tracks, AHiddenTrailGrowsUnseenUntilItIsShown)
{
    At(48);
    At(49);
    SelectStation();
    mnuHideStationTrack_Click(p.main);
    At(50);
    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=0", "N0CALL(t)*=0", "N0CALL(t)=1"));
    for (const ShapeData& line : Lines()) {
        EXPECT_FALSE(line.bVisible || line.bBeginArrowhead || line.bEndArrowhead);
        EXPECT_EQ(line.weight, 0);
    }
    EXPECT_EQ(Tcp().TrackLines.Find("N0CALL")->size(), 2U);

    Set(Setting::TrackLineSize, "7");
    Set(Setting::TrackLineStyle, "3");
    mnuShowStationTrack_Click(p.main);
    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=1", "N0CALL(t)*=1", "N0CALL(t)=1"));
    for (const ShapeData& line : Lines()) {
        EXPECT_TRUE(line.bVisible && line.bBeginArrowhead && line.bEndArrowhead);
        EXPECT_EQ(line.weight, 11);
    }
    // Hidden ahead of the first move.
    p.Position(Channel::TCP, "N1CALL", 1, 2);
    p.Select("TCPPositionsN1CALL");
    mnuHideStationTrack_Click(p.main);
    EXPECT_EQ(*Tcp().TrackVisible.Find("N1CALL"), false);
}

TEST_F(Tracks, WithoutLinesATrackHasPointsOnly)
{
    mnuToolsShowTrackLine_Click(p.main);
    At(48);
    At(49);
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_TRUE(Tcp().TrackLines.IsEmpty());
    SelectStation();
    p.prompts.answers = {Answer::No, Answer::Yes};
    mnuRemoveTrack_Click(p.main);
    EXPECT_EQ(p.MarkerNames().size(), 2U);
    mnuRemoveTrack_Click(p.main);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)")); // The marker itself stays.
    EXPECT_EQ(p.prompts.questions.front(), "Are you sure you want to remove track for N0CALL?");
}

TEST_F(Tracks, TheMapFollowsOnlyWhereWanted)
{
    p.main.window.rightView = RightView::Inbox;
    At(48);
    At(48); // Not moved: centred all the same.
    EXPECT_NEAR(p.TheMap().View().centre.lat, 48, 1e-9);
    EXPECT_EQ(p.main.window.rightView, RightView::Map);
    p.Position(Channel::TCP, "N1CALL", 10, 10);
    EXPECT_NEAR(p.TheMap().View().centre.lat, 48, 1e-9);
    mnuToolsStationTracking_Click(p.main);
    At(50);
    EXPECT_NEAR(p.TheMap().View().centre.lat, 48, 1e-9);
}

// An unusable setting ends the map work; tree and record go on.
TEST_F(Tracks, AnUnusableLineSizeLeavesThePointAndTheReport)
{
    At(48);
    Set(Setting::TrackLineSize, "thick");
    At(49);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
    EXPECT_EQ(p.RecordText(Channel::TCP, "N0CALL", Field::Lat), "49");
    EXPECT_THAT(p.Note("N0CALL(t)"), testing::HasSubstr("49°"));
    EXPECT_EQ(p.main.mpCtrl.RequireMap().Shapes().Count(), 0U) << "a line that no command could remove";
}

TEST_F(Tracks, StartAndStopTouchEveryNameThatHoldsTheCall)
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
    mnuStartTrack_Click(p.main);
    EXPECT_EQ(p.main.Of(Channel::RF).Tracked.Count(), 1U);

    // The last step wins: names of RF and TCP are hidden whatever their settings say.
    Set(Setting::ShowRFNames, "1");
    mnuStopTrack_Click(p.main);
    EXPECT_FALSE(p.main.Of(Channel::RF).Tracked.Contains("N5"));
    EXPECT_THAT(Markers(), ElementsAre("N5(r)=0", "n5-7(r)=0", "N6(r)=0", "XN5X(r)=0", "N5(t)=0"));

    AddChannelTree(p.Tree(), Channel::FL);
    p.Position(Channel::FL, "N5", 1, 2);
    p.Select("FLPositionsN5");
    mnuStopTrack_Click(p.main); // FL follows its own.
    EXPECT_EQ(p.Marker("N5(t)")->BalloonState(), 1);
    p.main.frmImport.bFLShow = false;
    mnuStopTrack_Click(p.main);
    EXPECT_EQ(p.Marker("N5(f)")->BalloonState(), 0);
}

TEST_F(Tracks, ShowTrackedStationsOnly)
{
    At(48);
    At(49);
    p.Position(Channel::RF, "n0call", 1, 2); // Tracked on TCP: any list counts, and so does any case.
    p.Position(Channel::RF, "N1CALL", 1, 2);
    p.TheMap().AddPushpin(p.TheMap().GetLocation(1, 2), " N0CALL ");
    mnuShowTrack_Click(p.main);
    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=1", "N0CALL(t)=1", "n0call(r)=1", "N1CALL(r)=0", " N0CALL =1"));
    EXPECT_EQ(SettingText(p.main.Settings, Setting::ShowRFNames), "0");
    EXPECT_EQ(SettingText(p.main.Settings, Setting::ShowTCPNames), "0");
    EXPECT_FALSE(p.main.frmImport.bFLShow);
    EXPECT_EQ(p.main.tracking.NewMarkerBalloon, 1);
}

// The map may be replaced under a track: what is kept of it is dead, and every command copes.
TEST_F(Tracks, OutliveTheirMapWithoutHarm)
{
    At(48);
    At(49);
    p.main.mpCtrl.NewMap(kRegionEurope);
    EXPECT_EQ(Tcp().TrackMarkers.Find("N0CALL")->size(), 1U);
    SelectStation();
    mnuHideStationTrack_Click(p.main);
    mnuShowStationTrack_Click(p.main);
    At(50);
    At(51);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)*", "N0CALL(t)"));
    EXPECT_EQ(Tcp().TrackMarkers.Find("N0CALL")->size(), 2U);
    p.prompts.answers = {Answer::Yes};
    mnuRemoveAllTracks_Click(p.main);
    EXPECT_EQ(p.prompts.questions.back(), "Are you sure you want to remove all station tracks?");
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)"));
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_TRUE(Tcp().TrackMarkers.IsEmpty());
    EXPECT_TRUE(Tcp().TrackLines.IsEmpty());
}

// The question shows the call in upper case, and the track is looked up under that same text.
TEST_F(Tracks, ATrackOfALowerCaseCallIsNotRemovedByItsCommand)
{
    p.Position(Channel::TCP, "n0call", 48, 11);
    p.Position(Channel::TCP, "n0call", 49, 11);
    p.Select("TCPPositionsn0call");
    p.prompts.answers = {Answer::Yes};
    mnuRemoveTrack_Click(p.main);
    EXPECT_EQ(p.prompts.questions.back(), "Are you sure you want to remove track for N0CALL?");
    EXPECT_EQ(Tcp().TrackMarkers.Count(), 1U);
    RemoveStationTrack(p.main, Channel::TCP, "n0call");
    EXPECT_EQ(Tcp().TrackMarkers.Count(), 0U);
    EXPECT_THAT(p.MarkerNames(), ElementsAre("n0call(t)"));
}

} // namespace
} // namespace ruvenmark
