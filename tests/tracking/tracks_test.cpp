#include "map/selection.h"
#include "tracking/track_lines.h"
#include "tracks_fixture.h"

#include <gmock/gmock.h>

#include <cmath>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Tracks, AMoveLeavesAPointAndALineBehind)
{
    At(48);
    const std::string firstNote = p.Note("N0CALL(t)");
    p.clock.Advance(std::chrono::seconds(5));
    SelectOnMap(p.main, *p.Marker("N0CALL(t)"));
    p.Position(Channel::TCP, "N0CALL", 49, 12, "Van");

    EXPECT_THAT(Markers(), ElementsAre("N0CALL(t)*=1", "N0CALL(t)=1"));
    const Pushpin point = *p.Marker("N0CALL(t)*"), marker = *p.Marker("N0CALL(t)");
    EXPECT_EQ(point.Location().Point(), (GeoPoint{48, 11}));
    EXPECT_EQ(p.main.map.Selection, MapSelection(marker)); // Who picked a station goes on with it.
    EXPECT_EQ(point.Note(), firstNote);                    // Keeps its note and picture.
    EXPECT_EQ(point.Symbol(), 82);
    EXPECT_EQ(marker.Symbol(), 87);
    EXPECT_THAT(marker.Note(), testing::StartsWith("TCP, 2026-11-22 20:15:08"));
    ASSERT_EQ(Lines().size(), 1U);
    const ShapeData line = Lines()[0];
    EXPECT_TRUE(line.from == (GeoPoint{48, 11}) && line.to == (GeoPoint{49, 12}));
    EXPECT_EQ(line.weight, 1);
    EXPECT_TRUE(line.bEndArrowhead && !line.bBeginArrowhead);
    EXPECT_EQ(line.foreColor, kDefaultLineColor);
    EXPECT_THAT(*Tcp().TrackMarkers.Find("N0CALL"), ElementsAre(point));
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
    p.clock.Advance(std::chrono::seconds(5));
    p.Position(Channel::TCP, "N0CALL", near, 0, "Van");
    EXPECT_THAT(p.MarkerNames(), ElementsAre("N0CALL(t)"));
    EXPECT_EQ(p.Marker("N0CALL(t)")->Location().Point(), (GeoPoint{0, 0})); // It does not creep.
    EXPECT_EQ(p.Marker("N0CALL(t)")->Symbol(), 82);
    EXPECT_THAT(p.Note("N0CALL(t)"), testing::StartsWith("TCP, 2026-11-22 20:15:08")); // Yet the note is the last's.
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

// Outside its table each is nothing.
TEST_F(Tracks, LooksFollowTheirIndices)
{
    std::string looks;
    for (const char* index : {"-1", "0", "1", "8", "9"}) {
        for (const Setting setting : {Setting::TrackLineSize, Setting::TrackLineStyle, Setting::MobileColor})
            Set(setting, index);
        const SettingsState& settings = p.main.Settings;
        looks += std::to_string(TrackLineWeight(settings)) + (TrackBeginArrow(settings) ? "<" : "-") +
                 (TrackEndArrow(settings) ? ">" : "-") + std::to_string(MobileColor(settings)) + ' ';
    }
    EXPECT_EQ(looks, "0--0 0--0 1->255 13--0 0--0 ");
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
    EXPECT_THAT(Lines(), IsEmpty()) << "a line that no command could remove";
}

} // namespace
} // namespace ruvenmark
