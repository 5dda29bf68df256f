#include "messaging/send_message.h"
#include "support/test_program.h"
#include "ui/message_popups.h"
#include "ui/station_tree_commands.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using testing::HasSubstr;

// What the menu shows: captions, those that are ticked with "*", those that are not enabled with "-".
std::string Shown(const std::vector<MenuItem>& items)
{
    std::string shown;
    for (const MenuItem& item : items)
        if (!item.IsLine() && item.state.bVisible)
            shown += (item.state.bEnabled ? "" : "-") + item.state.caption + (item.state.bChecked ? "*|" : "|");
    return shown;
}

std::string RightClick(TestProgram& program, std::string_view key)
{
    TreeNode* const node = key.empty() ? nullptr : program.Node(key);
    const auto popup = tvStationList_MouseUp(program.main, kRightButton, node);
    return popup ? Shown(popup->items) : "(none)";
}

TEST(PopupMenus, OnlyTheRightButtonOpensOneAndItSelectsFirst)
{
    TestProgram program;
    EXPECT_FALSE(tvStationList_MouseUp(program.main, 1, program.Node("RF")));
    EXPECT_EQ(program.Tree().Selected(), nullptr);
    for (const char* key : {"TCP", ""}) { // Nothing under the pointer leaves the selection.
        EXPECT_NE(RightClick(program, key), "(none)");
        EXPECT_EQ(program.Tree().Selected(), program.Node("TCP"));
    }
}

TEST(PopupMenus, RootsShowTheirOwnForm)
{
    TestProgram program;
    EXPECT_EQ(RightClick(program, "RF"),
              "Connect TNC...|Filter RF Reports|Edit RF Filter...|Delete RF Reports|-Hide All Range Circles|"
              "Show Tracked Stations Only|Show RF Station Names*|Hide RF Station Names|");

    program.main.Of(Channel::TCP).Filter.bOn = true;
    SetSetting(program.main.Settings, Setting::ShowTCPNames, "0");
    EXPECT_EQ(RightClick(program, "TCP"),
              "Connect APRS Server...|Filter TCP Reports*|Edit TCP Filter...|Delete TCP Reports|"
              "-Hide All Range Circles|Show Tracked Stations Only|Show TCP Station Names|Hide TCP Station Names*|");

    program.Hear("N0CALL>APRS:!4000.00N/08000.00W>");
    program.main.links.FileLoading = true;
    EXPECT_EQ(RightClick(program, "FL"),
              "Filter FL Reports|Edit FL Filter...|Delete FL Reports|-Hide All Range Circles|"
              "Show Tracked Stations Only|Show FL Station Names*|Hide FL Station Names|Stop File Loading|Unload FL|");

    TreeNode& club = program.Tree().AddRoot("Club", "My Q&A (3)"); // Captioned up to its last blank.
    EXPECT_EQ(RightClick(program, "Club"), "-Hide All Range Circles|Show Tracked Stations Only|"
                                           "Show My Q&&A Stations|Hide My Q&&A Stations|Unload My Q&&A|");
    program.Tree().Add(program.Tree().Add(club, "Positions", "Positions"), "N0CALL", "N0CALL");
    EXPECT_THAT(RightClick(program, "ClubPositionsN0CALL"), HasSubstr("|-Start Tracking|"));
}

TEST(PopupMenus, NothingUnderThePointerOffersWhatIsForAll)
{
    TestProgram program;
    EXPECT_EQ(RightClick(program, ""), "Delete all Reports|Show All Station Names*|Hide All Station Names|"
                                       "-Hide All Range Circles|Show Tracked Stations Only|Load Stations...|");
    SetSetting(program.main.Settings, Setting::ShowTCPNames, "no number");
    EXPECT_THAT(RightClick(program, ""), HasSubstr("|Show All Station Names|Hide All Station Names|"));
}

TEST(PopupMenus, AStationsEntriesFollowItsChannel)
{
    TestProgram program;
    program.Hear(Channel::RF, "n0call-9>APRS:!4000.00N/08000.00W>");
    program.Hear(Channel::TCP, "n0call-9>APRS:!4000.00N/08000.00W>PHG5130");
    program.main.Of(Channel::RF).Tracked.Set("N0CALL-9", "N0CALL-9");

    EXPECT_EQ(RightClick(program, "RFPositionsn0call-9"),
              "View Position|Send Message...|Operator Info|-Start Tracking|Stop Tracking|Show Track*|Hide Track|"
              "-Remove Track|-Show Signal Range|-Hide Signal Range|Delete Report|");
    program.main.Of(Channel::RF).TrackVisible.Set("N0CALL-9", false);
    program.main.tracking.bShowTrackLine = false; // Points alone can be removed too.
    program.Position(Channel::RF, "n0call-9", 41, -80);
    EXPECT_THAT(RightClick(program, "RFPositionsn0call-9"), HasSubstr("|Show Track|Hide Track*|Remove Track|"));

    EXPECT_EQ(RightClick(program, "TCPPositionsn0call-9"),
              "View Position|Send Message...|Operator Info|Start Tracking|-Stop Tracking|-Show Track|-Hide Track|"
              "-Remove Track|Show Signal Range|-Hide Signal Range|Delete Report|");
    RunMenuEntry(program.main, MenuEntry::mnuShowRange);
    EXPECT_THAT(RightClick(program, "TCPPositionsn0call-9"), HasSubstr("|Hide Signal Range|"));
    EXPECT_THAT(RightClick(program, ""), HasSubstr("|Hide All Range Circles|"));
}

TEST(PopupMenus, FoldersAreSortedOrCatchPackets)
{
    TestProgram program;
    AddChannelTree(program.Tree(), Channel::FL);
    program.Select("FLUnknown");
    RunMenuEntry(program.main, MenuEntry::mnuShowUnknown);
    const std::pair<const char*, const char*> kFolders[] = {
        {"RFPositions", "(none)"},
        {"RFUnknown", "Catch Rejected Packets|"},
        {"TCPStatus", "Sort in Alphabetic Order|"},
        {"TCPUnknown", "Sort in Alphabetic Order|Catch Rejected Packets|"},
        {"FLUnknown", "Sort in Alphabetic Order|Catch Rejected Packets*|"}};
    for (const auto& [key, shown] : kFolders)
        EXPECT_EQ(RightClick(program, key), shown) << key;
}

TEST(PopupMenus, FactsHaveNoneAndTheOwnStationsFactsHaveTheirs)
{
    TestProgram program;
    program.Hear(Channel::TCP, "N0CALL>APRS:!4000.00N/08000.00W>");
    program.Tree().Add(*program.Node("MyPosition"), "Lat", "Lat: 40");
    const std::pair<const char*, const char*> kNodes[] = {
        {"TCPPositionsN0CALLLat", "(none)"},
        {"My", "Station Settings...|"},
        {"MyPosition", "Position Settings...|-Send Position|"},
        {"MyWeather", "Weather Settings...|-Send Weather|"},
        {"MyPositionLat", "-View Position|-Show Signal Range|-Hide Signal Range|"}};
    for (const auto& [key, shown] : kNodes)
        EXPECT_EQ(RightClick(program, key), shown) << key;
    SetSetting(program.main.Settings, Setting::Lat, "40");
    SetSetting(program.main.Settings, Setting::Lon, "-80");
    program.main.map.MyRange = 9.5;
    EXPECT_EQ(RightClick(program, "MyPositionLat"), "View Position|Show Signal Range|-Hide Signal Range|");
}

// A command on a list that is not in front would act on what nobody sees.
TEST(PopupMenus, MessagesOfferWhatGoesWithTheListInFront)
{
    TestProgram program;
    MainWindow& main = program.main;
    const auto shown = [&] { return Shown(MenuItems(main, Menu::mnuMsgPopup)); };
    const auto click = [&](const char* box) {
        const auto popup = tvMessageBoxes_MouseUp(main, kRightButton, main.messages.tvMessageBoxes.Find(box));
        return popup.empty() ? "(none)" : Shown(popup);
    };
    RunMenuEntry(main, MenuEntry::mnuViewMessages);
    EXPECT_EQ(shown(), "-Open|-Reply...|-Forward...|-Delete|-Delete All|-Locate Sender|New Message...|");
    program.Sink(Channel::RF).ReportAprsMsg({"W1AW", "APRS", "", "BLN1", "net", ""});
    SendAprsMessage(main, "N0CALL", "W1AW", "", "hello", "3");
    main.messages.lvMessageList.Select(0, true);
    main.messages.lvSentList.Select(0, true);
    EXPECT_EQ(shown(), "Open|Reply...|Forward...|Delete|Delete All|Locate Sender|New Message...|");
    EXPECT_EQ(click("MessagesInbox"), "New Message...|Clear Inbox|Settings...|");
    EXPECT_EQ(click("MessagesSent"), "New Message...|Clear Sent Items|Settings...|");
    EXPECT_EQ(shown(), "-Send Again|Delete|Delete All|Locate Recipient|New Message...|");
    main.links.bServerConnected = true;
    EXPECT_THAT(shown(), testing::StartsWith("Send Again|"));
    EXPECT_EQ(click("Messages"), "New Message...|Settings...|");
    EXPECT_EQ(click("MessagesNone"), "(none)");
}

} // namespace
} // namespace ruvenmark
