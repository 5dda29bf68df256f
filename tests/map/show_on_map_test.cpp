#include "map/directions.h"
#include "map/find.h"
#include "map/map_settings.h"
#include "map/markers.h"
#include "map/pointer_tools.h"
#include "map/selection.h"
#include "map/show_on_map.h"
#include "map/station_notes.h"
#include "support/test_program.h"
#include "tracking/filter_form_rules.h"
#include "ui/menus.h"
#include "ui/web_page.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

class Showing : public testing::Test {
protected:
    Showing()
    {
        p.Position(Channel::TCP, "N0CALL", 48, 11);
        p.Position(Channel::TCP, "N1CALL", 48, 11);
        p.TheMap().SetView({0, 0}, 3);
    }
    void ExpectShown(const std::string& call)
    {
        EXPECT_EQ(p.main.window.rightView, RightView::Map);
        EXPECT_NEAR(p.TheMap().View().centre.lat, 48, 1e-9);
        EXPECT_GE(p.TheMap().View().zoom, 10);
        EXPECT_EQ(p.main.map.Selection, MapSelection(*p.Marker(call + "(t)")));
        EXPECT_EQ(p.Tree().Selected(), p.Node("TCPPositions" + call));
        p.TheMap().SetView({0, 0}, 3);
    }

    TestProgram p;
};

// Every road ends alike: a station that one asked for is never left hidden in a heap.
TEST_F(Showing, EveryRoadCentresNearsSelectsAndFindsTheNode)
{
    p.Select("TCPPositionsN0CALL");
    mnuViewPosition_Click(p.main);
    ExpectShown("N0CALL");
    mnuRuvenmarkHelp_Click(p.main);
    GoToFound(p.main, Find(p.main, FakePlaces(), "n1call", 1).at(0));
    ExpectShown("N1CALL");
    ShowOnMap(p.main, *p.Marker("N0CALL(t)"));
    ExpectShown("N0CALL");

    p.TheMap().SetView({0, 0}, 12);
    mnuViewPosition_Click(p.main);
    EXPECT_EQ(p.TheMap().View().zoom, 12) << "who is nearer stays nearer";
}

TEST_F(Showing, MarkerAndNodeFollowEachOther)
{
    const MapView before = p.TheMap().View();
    PickOut(p.main, *p.Marker("N1CALL(t)"));
    EXPECT_EQ(p.Tree().Selected(), p.Node("TCPPositionsN1CALL"));
    EXPECT_EQ(p.TheMap().View().centre, before.centre);
    for (const char* key : {"TCPPositionsN0CALL", "TCP"}) { // No station: what is selected on the map stays.
        p.Select(key);
        tvStationList_Select(p.main);
        EXPECT_EQ(p.main.map.Selection, MapSelection(*p.Marker("N0CALL(t)")));
    }
    // A point of the trail is not exchanged for its station, else Delete would hit the wrong one.
    const Pushpin point = p.TheMap().AddPushpin(p.TheMap().GetLocation(47, 11), "N1CALL(t)*");
    PickOut(p.main, point);
    tvStationList_Select(p.main);
    EXPECT_EQ(p.Tree().Selected(), p.Node("TCPPositionsN1CALL"));
    EXPECT_EQ(p.main.map.Selection, MapSelection(point));

    p.Select("TCPPositionsN0CALLPath"); // Whoever reads a fact is not torn away from it.
    PickOut(p.main, *p.Marker("N0CALL(t)"));
    EXPECT_EQ(p.Tree().Selected(), p.Node("TCPPositionsN0CALLPath"));
}

TEST_F(Showing, TrailsAndOddNamesBelongToTheirStations)
{
    const auto callOf = [&](const char* name) {
        const auto station = StationOfMarker(p.main, name);
        return station ? station->call : "(none)";
    };
    p.Position(Channel::RF, "A(t)", 1, 2);
    EXPECT_EQ(callOf("N0CALL(t)*"), "N0CALL");
    EXPECT_EQ(callOf("A(t)(r)"), "A(t)");
    ForgetStation(p.main, Channel::TCP, "N0CALL"); // Its status was deleted: the node still stands.
    EXPECT_EQ(callOf("N0CALL(t)"), "N0CALL");
    for (const char* none : {"N0CALL(r)", "N0CALL", "*"})
        EXPECT_EQ(callOf(none), "(none)");
}

TEST_F(Showing, TypedPlacesAreFoundAndACallBeatsALocator)
{
    const FakePlaces places;
    for (const char* typed : {"48.25, 11.5", "48°15.0'N 11°30.0'E"}) {
        const auto found = Find(p.main, places, typed, 5);
        ASSERT_EQ(found.size(), 1U) << typed;
        EXPECT_EQ(found[0].detail, "JN58sg");
        GoToFound(p.main, found[0]);
        EXPECT_NEAR(p.TheMap().View().centre.lat, 48.25, 1e-6);
    }
    EXPECT_EQ(Find(p.main, places, "jn58td", 5).at(0).name, "jn58td");
    EXPECT_NEAR(ReadDirectionsEnd(p.main, "jn58td")->point.lat, 48.1458, 1e-3);
    EXPECT_EQ(ReadDirectionsEnd(p.main, "48 15 N 11 30 E")->point, (GeoPoint{48.25, 11.5}));
    p.Position(Channel::RF, "JN58TD", 1, 2);
    EXPECT_EQ(ReadDirectionsEnd(p.main, "jn58td")->name, "JN58TD(r)");
}

TEST_F(Showing, TheCoordinateBoxChangesItsFormAndEmptiesOffTheWorld)
{
    p.TheMap().SetSize(800, 600);
    p.TheMap().SetView({47.123456, 8.5}, 12);
    mpCtrl_MouseMove(p.main, 400, 300);
    for (const char* text : {"47°07.407'N 008°30.000'E", "JN47gc", "47.12346, 8.5"}) {
        ChangeCoordinateForm(p.main); // With the pointer at rest.
        EXPECT_EQ(p.main.sbStatusBar.Coordinates(), text);
    }
    p.TheMap().SetView({84, 8.5}, 2);
    mpCtrl_MouseMove(p.main, 400, 5);
    EXPECT_EQ(p.main.sbStatusBar.Coordinates(), "");
}

// The next packet must not wipe away what the operator is to do.
TEST_F(Showing, PinpointSaysWhatToDoUntilItEnds)
{
    for (const bool bClick : {false, true}) {
        PinPointDirectionsEnd(p.main, 0);
        p.main.sbStatusBar.SetPacketLine("N0CALL>APRS:>x");
        EXPECT_EQ(p.main.sbStatusBar.Prompt(), "Click the place on the map (Esc to cancel)");
        if (!bClick)
            EndPinPoint(p.main);
        EXPECT_EQ(mpCtrl_Click(p.main, 400, 300), bClick);
        EXPECT_EQ(p.main.sbStatusBar.Prompt(), "");
    }
}

TEST_F(Showing, AReportTellsItsMarkerWhenItWasHeard)
{
    const std::int64_t first = p.clock.UnixSeconds();
    p.clock.Advance(std::chrono::hours(2));
    p.Position(Channel::TCP, "N1CALL", 48, 11);
    EXPECT_EQ(p.Marker("N1CALL(t)")->Heard(), first + 7200);
    EXPECT_EQ(p.Marker("N0CALL(t)")->Heard(), first);
}

class PointerTools : public testing::Test {
protected:
    PointerTools()
    {
        program.TheMap().SetSize(800, 600);
        program.TheMap().SetView({47.123456789, 8.5}, 12);
    }
    // The middle of the map window is the centre of the view.
    bool ClickMiddle() { return mpCtrl_Click(program.main, 400, 300); }
    ReportFilter& Fields(Channel channel) { return program.main.frmFilter.fields[static_cast<std::size_t>(channel)]; }

    TestProgram program;
};

TEST_F(PointerTools, PressingTwiceStillGivesThePointerBack)
{
    program.main.mpCtrl.SetMousePointer(7);
    ShowFilterOf(program.main, Channel::FL);
    mnuRuvenmarkHelp_Click(program.main);
    frmFilter_PinPoint(program.main);
    frmFilter_PinPoint(program.main);
    EXPECT_EQ(program.main.window.rightView, RightView::Map);
    EXPECT_TRUE(ClickMiddle());
    EXPECT_EQ(program.main.mpCtrl.MousePointer(), 7);
    EXPECT_EQ(Fields(Channel::FL).Lat, "47.12346");
    EXPECT_EQ(Fields(Channel::RF).Lat, "");
    EXPECT_FALSE(ClickMiddle()) << "a click that nobody waits for is the map's";
}

TEST_F(PointerTools, ADialogClosedInTheMeantimeGetsNothing)
{
    mnuToolsFilter_Click(program.main);
    frmFilter_PinPoint(program.main);
    program.dialogs.Hide(Form::frmFilter);
    EXPECT_TRUE(ClickMiddle());
    EXPECT_EQ(Fields(Channel::RF).Lat, "");
    EXPECT_EQ(program.main.mpCtrl.MousePointer(), kPointerDefault);
    EXPECT_EQ(program.dialogs.calls.back(), "ComeBack frmFilter")
        << "whatever stood aside for the click must not stay hidden";
}

// Whoever asks next takes the click over; the dialog that waited before must not stay hidden for ever.
TEST_F(PointerTools, ADialogWhoseClickIsTakenOverComesBack)
{
    RunMenuEntry(program.main, MenuEntry::mnuDirections);
    mnuToolsFilter_Click(program.main);
    frmFilter_PinPoint(program.main);
    PinPointDirectionsEnd(program.main, 0);
    EXPECT_EQ(program.dialogs.calls.back(), "ComeBack frmFilter");
    EXPECT_TRUE(ClickMiddle());
    EXPECT_EQ(Fields(Channel::RF).Lat, "");
    ASSERT_TRUE(program.main.map.directions[0]);
    EXPECT_EQ(program.main.map.directions[0]->point, (GeoPoint{47.12346, 8.5}));
    EXPECT_FALSE(program.main.map.directions[1]);
}

} // namespace
} // namespace ruvenmark
