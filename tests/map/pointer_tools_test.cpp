#include "map/pointer_tools.h"
#include "support/test_program.h"
#include "tracking/filter_form_rules.h"
#include "ui/menus.h"
#include "ui/web_page.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ruvenmark {
namespace {

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
