#include "messaging/send_message.h"
#include "support/test_program.h"
#include "ui/message_popups.h"
#include "ui/station_tree_commands.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

using Names = std::vector<std::string>;

std::optional<PopupMenu> RightClick(TestProgram& program, std::string_view key)
{
    return tvStationList_MouseUp(program.main, kRightButton, key.empty() ? nullptr : program.Node(key));
}

// What the menu shows: captions, those that are ticked with "*", those that are not enabled with "-".
Names Shown(const std::vector<MenuItem>& items)
{
    Names shown;
    for (const MenuItem& item : items) {
        if (item.IsLine() || !item.state.bVisible)
            continue;
        shown.push_back((item.state.bEnabled ? "" : "-") + item.state.caption + (item.state.bChecked ? "*" : ""));
    }
    return shown;
}
Names Shown(const std::optional<PopupMenu>& popup)
{
    return popup ? Shown(popup->items) : Names();
}

TEST(PopupMenus, OnlyTheRightButtonOpensOneAndItSelectsFirst)
{
    TestProgram program;
    EXPECT_FALSE(tvStationList_MouseUp(program.main, 1, program.Node("RF")));
    EXPECT_EQ(program.Tree().Selected(), nullptr);
    EXPECT_TRUE(tvStationList_MouseUp(program.main, 3, program.Node("TCP")));
    EXPECT_EQ(program.Tree().Selected(), program.Node("TCP"));
    EXPECT_TRUE(RightClick(program, "")); // Nothing under the pointer leaves the selection.
    EXPECT_EQ(program.Tree().Selected(), program.Node("TCP"));
}

TEST(PopupMenus, RootsShowTheirOwnForm)
{
    TestProgram program;
    EXPECT_EQ(Shown(RightClick(program, "RF")),
              (Names{"Connect TNC...", "Filter RF Reports", "Edit RF Filter...", "Delete RF Reports",
                     "-Hide All Range Circles", "Show Tracked Stations Only", "Show RF Station Names*",
                     "Hide RF Station Names"}));

    program.main.Of(Channel::TCP).Filter.bOn = true;
    SetSetting(program.main.Settings, Setting::ShowTCPNames, "0");
    EXPECT_EQ(Shown(RightClick(program, "TCP")),
              (Names{"Connect APRS Server...", "Filter TCP Reports*", "Edit TCP Filter...", "Delete TCP Reports",
                     "-Hide All Range Circles", "Show Tracked Stations Only", "Show TCP Station Names",
                     "Hide TCP Station Names*"}));

    program.Hear("N0CALL>APRS:!4000.00N/08000.00W>");
    program.main.links.FileLoading = true;
    EXPECT_EQ(Shown(RightClick(program, "FL")),
              (Names{"Filter FL Reports", "Edit FL Filter...", "Delete FL Reports", "-Hide All Range Circles",
                     "Show Tracked Stations Only", "Show FL Station Names*", "Hide FL Station Names",
                     "Stop File Loading", "Unload FL"}));

    TreeNode& club = program.Tree().AddRoot("Club", "My Q&A (3)"); // Captioned up to its last blank.
    EXPECT_EQ(Shown(RightClick(program, "Club")),
              (Names{"-Hide All Range Circles", "Show Tracked Stations Only", "Show My Q&&A Stations",
                     "Hide My Q&&A Stations", "Unload My Q&&A"}));
    program.Tree().Add(program.Tree().Add(club, "Positions", "Positions"), "N0CALL", "N0CALL");
    EXPECT_EQ(Shown(RightClick(program, "ClubPositionsN0CALL"))[3], "-Start Tracking");
}

TEST(PopupMenus, NothingUnderThePointerOffersWhatIsForAll)
{
    TestProgram program;
    Names names{"Delete all Reports",      "Show All Station Names*",    "Hide All Station Names",
                "-Hide All Range Circles", "Show Tracked Stations Only", "Load Stations..."};
    EXPECT_EQ(Shown(RightClick(program, "")), names);
    SetSetting(program.main.Settings, Setting::ShowRFNames, "0");
    SetSetting(program.main.Settings, Setting::ShowTCPNames, "no number");
    names[1].pop_back();
    EXPECT_EQ(Shown(RightClick(program, "")), names);
}

TEST(PopupMenus, AStationsEntriesFollowItsChannel)
{
    TestProgram program;
    program.Hear(Channel::RF, "n0call-9>APRS:!4000.00N/08000.00W>");
    program.Hear(Channel::TCP, "n0call-9>APRS:!4000.00N/08000.00W>PHG5130");
    program.main.Of(Channel::RF).Tracked.Set("N0CALL-9", "N0CALL-9");

    EXPECT_EQ(
        Shown(RightClick(program, "RFPositionsn0call-9")),
        (Names{"View Position", "Send Message...", "Operator Info", "-Start Tracking", "Stop Tracking", "Show Track*",
               "Hide Track", "-Remove Track", "-Show Signal Range", "-Hide Signal Range", "Delete Report"}));
    program.main.Of(Channel::RF).TrackVisible.Set("N0CALL-9", false);
    program.main.tracking.bShowTrackLine = false; // Points alone can be removed too.
    program.Position(Channel::RF, "n0call-9", 41, -80);
    auto captions = Shown(RightClick(program, "RFPositionsn0call-9"));
    EXPECT_EQ(captions[5], "Show Track");
    EXPECT_EQ(captions[6], "Hide Track*");
    EXPECT_EQ(captions[7], "Remove Track");

    EXPECT_EQ(
        Shown(RightClick(program, "TCPPositionsn0call-9")),
        (Names{"View Position", "Send Message...", "Operator Info", "Start Tracking", "-Stop Tracking", "-Show Track",
               "-Hide Track", "-Remove Track", "Show Signal Range", "-Hide Signal Range", "Delete Report"}));
    RunMenuEntry(program.main, MenuEntry::mnuShowRange);
    EXPECT_EQ(Shown(RightClick(program, "TCPPositionsn0call-9"))[9], "Hide Signal Range");
    EXPECT_EQ(Shown(RightClick(program, ""))[3], "Hide All Range Circles");
}

TEST(PopupMenus, FoldersAreSortedOrCatchPackets)
{
    TestProgram program;
    AddChannelTree(program.Tree(), Channel::FL);
    EXPECT_FALSE(RightClick(program, "RFPositions"));
    EXPECT_EQ(Shown(RightClick(program, "RFUnknown")), Names{"Catch Rejected Packets"});
    EXPECT_EQ(Shown(RightClick(program, "TCPStatus")), Names{"Sort in Alphabetic Order"});
    program.Select("FLUnknown");
    RunMenuEntry(program.main, MenuEntry::mnuShowUnknown);
    EXPECT_EQ(Shown(RightClick(program, "FLUnknown")), (Names{"Sort in Alphabetic Order", "Catch Rejected Packets*"}));
    EXPECT_EQ(Shown(RightClick(program, "TCPUnknown")), (Names{"Sort in Alphabetic Order", "Catch Rejected Packets"}));
}

TEST(PopupMenus, FactsHaveNoneAndTheOwnStationsFactsHaveTheirs)
{
    TestProgram program;
    program.Hear(Channel::TCP, "N0CALL>APRS:!4000.00N/08000.00W>");
    EXPECT_FALSE(RightClick(program, "TCPPositionsN0CALLLat"));
    EXPECT_EQ(Shown(RightClick(program, "My")), Names{"Station Settings..."});
    EXPECT_EQ(Shown(RightClick(program, "MyPosition")), (Names{"Position Settings...", "-Send Position"}));
    EXPECT_EQ(Shown(RightClick(program, "MyWeather")), (Names{"Weather Settings...", "-Send Weather"}));

    program.Tree().Add(*program.Node("MyPosition"), "Lat", "Lat: 40");
    EXPECT_EQ(Shown(RightClick(program, "MyPositionLat")),
              (Names{"-View Position", "-Show Signal Range", "-Hide Signal Range"}));
    SetSetting(program.main.Settings, Setting::Lat, "40");
    SetSetting(program.main.Settings, Setting::Lon, "-80");
    program.main.map.MyRange = 9.5;
    EXPECT_EQ(Shown(RightClick(program, "MyPositionLat")),
              (Names{"View Position", "Show Signal Range", "-Hide Signal Range"}));
}

// A command on a list that is not in front would act on what nobody sees.
TEST(PopupMenus, MessagesOfferWhatGoesWithTheListInFront)
{
    TestProgram program;
    MainWindow& main = program.main;
    const auto shown = [&] { return Shown(MenuItems(main, Menu::mnuMsgPopup)); };
    const auto click = [&](const char* box) {
        return Shown(tvMessageBoxes_MouseUp(main, kRightButton, main.messages.tvMessageBoxes.Find(box)));
    };
    RunMenuEntry(main, MenuEntry::mnuViewMessages);
    EXPECT_EQ(shown(), (Names{"-Open", "-Reply...", "-Forward...", "-Delete", "-Delete All", "-Locate Sender",
                              "New Message..."}));
    program.Sink(Channel::RF).ReportAprsMsg({"W1AW", "APRS", "", "BLN1", "net", ""});
    SendAprsMessage(main, "N0CALL", "W1AW", "", "hello", "3");
    main.messages.lvMessageList.Select(0, true);
    main.messages.lvSentList.Select(0, true);
    EXPECT_EQ(shown(),
              (Names{"Open", "Reply...", "Forward...", "Delete", "Delete All", "Locate Sender", "New Message..."}));
    EXPECT_EQ(click("MessagesInbox"), (Names{"New Message...", "Clear Inbox", "Settings..."}));
    EXPECT_EQ(click("MessagesSent"), (Names{"New Message...", "Clear Sent Items", "Settings..."}));
    EXPECT_EQ(main.window.rightView, RightView::Sent);
    EXPECT_EQ(shown(), (Names{"-Send Again", "Delete", "Delete All", "Locate Recipient", "New Message..."}));
    main.links.bServerConnected = true;
    EXPECT_EQ(shown().front(), "Send Again");
    EXPECT_EQ(click("Messages"), (Names{"New Message...", "Settings..."}));
    EXPECT_EQ(click("MessagesNone"), Names{});
}

} // namespace
} // namespace ruvenmark
