#include "map/range_circles.h"
#include "map/symbols.h"
#include "platform/failure.h"
#include "support/map_shapes.h"
#include "support/test_program.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using testing::IsEmpty;

class RangeCircles : public testing::Test {
protected:
    std::vector<ShapeData> Circles() { return ShapesOf(p.TheMap()); }
    void Station(Channel channel, const char* call)
    {
        p.Position(channel, call, 48, 11);
        p.Sink(channel).ReportDataExt({call, "APRS", 48, 11, 50, 20, 3, ""});
    }
    void Own(const char* lat, const char* power)
    {
        const std::pair<Setting, const char*> kOwn[] = {{Setting::Call, "N9CALL"}, {Setting::Lat, lat},
                                                        {Setting::Lon, "11"},      {Setting::Power, power},
                                                        {Setting::Height, "20"},   {Setting::Gain, "3"}};
        for (const auto& [setting, text] : kOwn)
            SetSetting(p.main.Settings, setting, text);
    }

    TestProgram p;
};

TEST_F(RangeCircles, ShowTwiceLeavesOneCircleAtTheMarker)
{
    Station(Channel::RF, "N0CALL");
    p.Select("RFPositionsN0CALL");
    p.main.window.rightView = RightView::Inbox;
    mnuShowRange_Click(p.main);
    p.main.commDialog.bAddRFSymbol = false;
    p.Position(Channel::RF, "N0CALL", 49, 12);
    mnuShowRange_Click(p.main);
    const auto circles = Circles();
    ASSERT_EQ(circles.size(), 1U);
    EXPECT_EQ(circles[0].from, (GeoPoint{49, 12}));
    EXPECT_EQ(circles[0].width, circles[0].height);
    EXPECT_NEAR(circles[0].width, 9.45, 0.005);
    EXPECT_EQ(circles[0].foreColor, 255U);
    EXPECT_EQ(p.Marker("N0CALL(r)")->Location().Point(), (GeoPoint{49, 12})); // Moved there first.
    EXPECT_FALSE(p.Node("RFPositionsN0CALL")->IsBold());
    EXPECT_EQ(p.main.window.rightView, RightView::Map);

    for (int twice = 0; twice < 2; ++twice)
        mnuHideRange_Click(p.main);
    EXPECT_THAT(Circles(), IsEmpty());
    EXPECT_TRUE(p.main.abandoned.IsEmpty());
    mnuShowRange_Click(p.main);
    p.main.mpCtrl.NewMap(kRegionEurope); // The circle is dead now.
    mnuShowRange_Click(p.main);
    EXPECT_EQ(Circles().size(), 1U);
}

// One that the map has lost must not save the others, and the own circle is none of them.
TEST_F(RangeCircles, HideAllGoesOnPastADeadOneAndLeavesTheOwn)
{
    for (const char* call : {"N0CALL", "N1CALL", "N2CALL"}) {
        Station(Channel::TCP, call);
        p.Select(std::string("TCPPositions") + call);
        mnuShowRange_Click(p.main);
    }
    Own("48", "50");
    UpdateMyRange(p.main);
    mnuShowMyRange_Click(p.main);
    ASSERT_EQ(Circles().size(), 4U);
    Shape(*p.main.Of(Channel::TCP).RangeCircles.Find("N1CALL")).Delete();
    mnuHideAllRangeCircles_Click(p.main);
    EXPECT_EQ(Circles().size(), 1U);
    EXPECT_TRUE(p.main.Of(Channel::TCP).RangeCircles.IsEmpty());

    p.main.mpCtrl.NewMap(kRegionEurope); // The own one is dead too; it is drawn all the same.
    DrawMyRange(p.main);
    EXPECT_EQ(Circles().size(), 1U);
    mnuHideMyRange_Click(p.main);
    EXPECT_THAT(Circles(), IsEmpty());
    EXPECT_FALSE(p.main.map.MyRangeCircle);
}

TEST_F(RangeCircles, NoRangeOrNoPositionDrawsNothing)
{
    p.Sink(Channel::RF).ReportDataExt({"N0CALL", "APRS", 48, 11, 50, 20, 3, ""});
    p.Position(Channel::RF, "N1CALL", 1, 2);
    for (const char* key : {"RFPositionsN0CALL", "RFPositionsN1CALL", "RFPositionsN1CALLLat", "RF"}) {
        p.Select(key);
        mnuShowRange_Click(p.main);
    }
    EXPECT_THAT(Circles(), IsEmpty());
    EXPECT_FALSE(p.Marker("N0CALL(r)"));
    EXPECT_THAT(p.prompts.messages, IsEmpty());
}

TEST_F(RangeCircles, TheOwnCircleFollowsTheSettings)
{
    Own("48", "50");
    UpdateMyRange(p.main); // Works out the range; nothing shows yet.
    EXPECT_THAT(Circles(), IsEmpty());
    p.Position(Channel::RF, "N0CALL", 1, 2);
    p.Select("RFPositionsN0CALL");
    mnuShowMyRange_Click(p.main);
    ASSERT_EQ(Circles().size(), 1U);
    EXPECT_NEAR(Circles()[0].width, 9.45, 0.005);
    EXPECT_EQ(p.Marker("N9CALL")->Symbol(), kMyStationSymbol);

    Own("49", "200");
    UpdateMyRange(p.main); // A circle that shows is drawn anew.
    ASSERT_EQ(Circles().size(), 1U);
    EXPECT_EQ(Circles()[0].from, (GeoPoint{49, 11}));
    EXPECT_GT(Circles()[0].width, 13);
    for (const Setting missing : {Setting::Power, Setting::Height, Setting::Gain, Setting::Lat}) {
        Own("49", "200");
        SetSetting(p.main.Settings, missing, "");
        UpdateMyRange(p.main);
        EXPECT_EQ(p.main.map.MyRange, 0) << Info(missing).key;
    }
    EXPECT_THAT(Circles(), IsEmpty()); // Gone with the position.
    Own("48", "a lot");
    EXPECT_THROW(UpdateMyRange(p.main), Failure);
}

} // namespace
} // namespace ruvenmark
