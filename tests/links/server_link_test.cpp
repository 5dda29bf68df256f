#include "links/link_status_rules.h"
#include "links/server_form_rules.h"
#include "links/server_link.h"
#include "links/server_password.h"
#include "links/server_status_rules.h"
#include "links/tnc_link.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;

constexpr const char* kClosed = "APRS server connection closed";
constexpr const char* kFailed = "APRS server connection failed";

class ServerLinkTest : public testing::Test {
protected:
    TestProgram program;
    MainWindow& main = program.main;
    ServerForm& form = main.frmTcp;

    ServerLinkTest()
    {
        program.Set("Call=w1aw-7");
        form.sServerAddress = "prime";
        form.iServerPort = 14580;
        form.sBackupServer = "spare";
        form.iBackupPort = 10152;
    }
    const std::string& Shown() const { return main.sbStatusBar.PanelText(Panel::Server); }
    const std::string& TipText() const { return main.sbStatusBar.PanelTip(Panel::Server); }
    // The loss is held back for five seconds after the connect.
    void Lose()
    {
        program.wires.Lose();
        program.wires.Tick(5s);
    }
};

TEST_F(ServerLinkTest, LogsInWithTheExactLine)
{
    ConnectServerLink(main);
    EXPECT_EQ(program.wires.opened, "connect prime 14580 15");
    EXPECT_EQ(program.wires.Written(), "user w1aw-7 pass -1 vers Ruvenmark 1.0\r\n"); // No blank behind it.
    EXPECT_EQ(Shown(), "Connected to prime:14580");
    EXPECT_TRUE(main.links.bLoginSent);
    EXPECT_FALSE(main.sbStatusBar.IsWaitPointer());

    mnuConnectServer_Click(main);
    program.files.texts["/program/igatepw.txt"] = "W1AW:25988";
    form.sServerFilter = " filter r/41/-72/100"; // Not trimmed: what it says is the operator's affair.
    ConnectServerLink(main);
    EXPECT_EQ(program.wires.Written(), "user w1aw-7 pass 25988 vers Ruvenmark 1.0  filter r/41/-72/100\r\n");
}

TEST_F(ServerLinkTest, FindsThePassword)
{
    const auto of = [&](const std::string& text, std::string_view call) {
        program.files.texts["/program/igatepw.txt"] = text;
        return GetServerPassword(main, call);
    };
    EXPECT_EQ(GetServerPassword(main, "W1AW"), "-1"); // No file.
    EXPECT_EQ(of("k1abc:1\r\nw1aw:aB", "W1aw-15"), "aB");
    EXPECT_EQ(of("W1AW:1\nW1AW:2:x", "W1AW"), "2");
    EXPECT_EQ(of("W1AW-7:1", "W1AW-7"), "-1");              // Calls stand without their secondary ID.
    EXPECT_EQ(of("W1AW:1\nno colon\nW1AW:2", "W1AW"), "1"); // What stands before the broken line holds.
    EXPECT_EQ(of("no colon\nW1AW:2", "W1AW"), "-1");
    program.files.open.insert("/program/igatepw.txt"); // Others can read it: that is told, once, and not what it says.
    program.notices.lines.clear();
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(of("W1AW:s3cret", "W1AW"), "s3cret");
    ASSERT_EQ(program.notices.lines.size(), 1U);
    EXPECT_EQ(program.notices.lines[0].find("s3cret"), std::string::npos);
}

TEST_F(ServerLinkTest, TogglesByTheDialog)
{
    mnuConnectServer_Click(main); // Cancelled.
    EXPECT_FALSE(main.links.bServerConnected);

    program.dialogs.onRun[Form::frmTcp] = [](MainWindow& at) { EXPECT_TRUE(frmTcp_Accept(at)); };
    mnuConnectServer_Click(main);
    EXPECT_TRUE(main.links.bServerConnected);
    EXPECT_EQ(StateOf(MenuEntry::mnuConnectServer, {main, nullptr}).caption, "Disconnect &APRS Server");
    mnuConnectServer_Click(main);
    EXPECT_FALSE(main.links.bServerConnected || program.wires.IsKept());
    EXPECT_EQ(Shown(), kClosed);
    ConnectServerLink(main);
    EXPECT_EQ(StopMainWindow(main, MayAsk::No), StopResult::Stopped);
    EXPECT_FALSE(main.links.bServerConnected || program.wires.IsKept());
}

TEST_F(ServerLinkTest, GoesToTheBackupOnTheFourthLossAndStaysThere)
{
    form.bReconnectServer = true;
    form.iReconnectAttempt = 3;
    form.sBackupFilter = "filter t/m";
    ConnectServerLink(main);
    for (const char* mark : {"[1]", "[2]", "[3]"}) {
        Lose();
        EXPECT_EQ(Shown(), std::string("Connected to prime:14580 ") + mark);
        EXPECT_TRUE(program.wires.Written().starts_with("user "));
    }
    for (int loss = 4; loss < 6; ++loss) { // A reconnect that went well clears nothing.
        Lose();
        EXPECT_EQ(Shown(), "Connected to spare:10152 [B]");
        EXPECT_TRUE(program.wires.Written().ends_with(" filter t/m\r\n"));
    }
    EXPECT_EQ(program.wires.opened, "connect spare 10152 15");
    EXPECT_EQ(main.links.ReconnectCount, 5);
    main.links.ReconnectCount = std::numeric_limits<std::int16_t>::max(); // As after a year of losses.
    Lose();
    EXPECT_EQ(Shown(), "Connected to spare:10152 [B]");

    mnuConnectServer_Click(main);
    ConnectServerLink(main);
    EXPECT_EQ(main.links.ReconnectCount, 0);
}

// Each server has its own wish for the position, and the radio is none of its business.
TEST_F(ServerLinkTest, TheOwnPositionFollowsALoginWhereItIsWanted)
{
    main.commDialog.sSerialPort = "/dev/ttyS0";
    main.commDialog.lLastBaudRate = 9600;
    ConnectSerialTnc(main);
    program.wires.Say("cmd:");
    program.wires.Written(); // Its call to attention.
    program.Set("Lat=41.7 Lon=-72.7");
    form.bServerBeacon = form.bReconnectServer = true;
    const auto reports = [&] {
        const std::string sent = program.wires.Written();
        return std::count(sent.begin(), sent.end(), '\n') - 1; // Behind the login.
    };
    for (const bool bDefined : {false, true}) {
        main.beacons.PositionDefined = bDefined;
        ConnectServerLink(main);
        EXPECT_EQ(reports(), bDefined ? 1 : 0);
    }
    Lose();
    EXPECT_EQ(Shown(), "Connected to spare:10152 [B]");
    EXPECT_EQ(reports(), 0);
    form.bServerBeacon = false;
    form.bBackupBeacon = true;
    Lose();
    EXPECT_EQ(reports(), 1);
    ConnectServerLink(main);
    EXPECT_EQ(reports(), 0);
    program.wires.Use("serial");
    EXPECT_EQ(program.wires.Written(), "");
}

TEST_F(ServerLinkTest, EndsWhereNothingIsLeftToTry)
{
    ConnectServerLink(main); // Reconnecting is off.
    Lose();
    EXPECT_EQ(Shown(), kFailed);
    EXPECT_EQ(main.links.ReconnectCount, 0);
    EXPECT_FALSE(main.links.aprstcp);
    form.bReconnectServer = true;
    form.iBackupPort = -1;
    ConnectServerLink(main);
    program.notices.lines.clear();
    Lose();
    EXPECT_EQ(Shown(), kFailed);
    EXPECT_FALSE(main.links.bServerConnected);
    EXPECT_TRUE(program.notices.lines.empty());
    form.sServerFilter = std::string(600, 'x'); // A login that cannot be sent.
    ConnectServerLink(main);
    EXPECT_EQ(Shown(), kFailed);
    EXPECT_FALSE(program.wires.IsKept());
    EXPECT_EQ(TipText(), "");
}

TEST_F(ServerLinkTest, ARefusalEndsTheChain)
{
    form.bReconnectServer = true;
    form.iReconnectAttempt = 3;
    main.mpCtrl.SetMousePointer(kPointerCross);
    ConnectServerLink(main);
    program.wires.bRefuse = true;
    Lose();
    program.wires.Tick(60s);
    EXPECT_EQ(Shown(), kFailed);
    EXPECT_EQ(main.links.ReconnectCount, 1);
    EXPECT_FALSE(main.links.bServerConnected);
    EXPECT_EQ(main.sbStatusBar.Notice(), "APRS server connection failed: refused");
    EXPECT_FALSE(main.sbStatusBar.IsWaitPointer());
    EXPECT_EQ(main.mpCtrl.MousePointer(), kPointerCross); // A click is still waited for.
}

TEST_F(ServerLinkTest, TellsWhetherTheServerPassesOnWhatIsSent)
{
    ConnectServerLink(main);
    EXPECT_EQ(TipText(), "Connected for a moment; 0 lines heard; login not answered yet");
    program.wires.Say("# logresp w1aw-7 verified, server T2LOOP\r\n");
    EXPECT_EQ(TipText(),
              "Connected for a moment; 1 line heard, the last one a moment ago; server T2LOOP; login verified");
    EXPECT_FALSE(main.sbStatusBar.IsPanelWarning(Panel::Server));

    program.notices.lines.clear();
    program.wires.Say("# Parse errors on filter spec: 'zz/1'\r\n# Invalid login: user w1aw pass 25988 vers x\r\n");
    EXPECT_TRUE(main.sbStatusBar.IsPanelWarning(Panel::Server)); // Of a complaint alone.
    program.wires.Say("# logresp w1aw-7 unverified, server T2LOOP\r\n# logresp w1aw-7 unverified, server T2LOOP\r\n");
    EXPECT_TRUE(main.sbStatusBar.IsPanelWarning(Panel::Server));
    EXPECT_EQ(
        program.notices.lines,
        (std::vector<std::string>{"The APRS server says: Parse errors on filter spec: 'zz/1'",
                                  "The APRS server says: Invalid login: user w1aw pass ... vers x",
                                  "The APRS server has not verified the login: nothing that is sent is passed on"}));
    EXPECT_EQ(TipText().find("25988"), std::string::npos);

    mnuConnectServer_Click(main);
    EXPECT_EQ(TipText(), "");
    EXPECT_FALSE(main.sbStatusBar.IsPanelWarning(Panel::Server));
}

// Whoever looks sees the ages of that moment, and that a server with nothing to tell still lives.
TEST_F(ServerLinkTest, TheTipTellsAgesOfTheMomentItIsLookedAt)
{
    program.Set("Call=");
    ConnectServerLink(main);
    EXPECT_TRUE(main.links.bServerConnected && !main.links.bLoginSent);
    EXPECT_EQ(program.wires.Written(), "");
    program.wires.Tick(59s);
    program.wires.Say("N0CALL>APRS:>one\r\nN1CALL>APRS:>two\r\n");
    for (int i = 0; i < 5; ++i) {
        program.wires.Tick(24s);
        program.wires.Say("# keepalive\r\n");
    }
    program.wires.Tick(4s);
    ShowLinkStatus(main);
    EXPECT_EQ(TipText(),
              "Connected for 3 minutes; 2 lines heard, the last one 2 minutes ago; last sign of life 4 seconds "
              "ago; no login, as there is no call sign");
    EXPECT_EQ(main.sbStatusBar.PanelTip(Panel::Tnc), "");
    EndServerLink(main);
    ShowLinkStatus(main);
    EXPECT_EQ(TipText(), "");
}

TEST(LinkStatusTest, AgesReadAsOneSaysThem)
{
    EXPECT_EQ(AgeText(999ms), "a moment");
    EXPECT_EQ(AgeText(1s), "1 second");
    EXPECT_EQ(AgeText(59s), "59 seconds");
    EXPECT_EQ(AgeText(119s), "1 minute");
    EXPECT_EQ(AgeText(1h), "1 hour");
    EXPECT_EQ(AgeText(23h + 59min), "23 hours 59 minutes");
    EXPECT_EQ(AgeText(49h + 59min), "2 days 1 hour");
}

// The operator hears of it half a minute before the connection counts as lost, once; a keepalive takes it back.
TEST_F(ServerLinkTest, ASilentServerIsToldBeforeItIsLost)
{
    ConnectServerLink(main);
    program.notices.lines.clear();
    const auto warnsAfter = [&](std::chrono::seconds time) {
        program.wires.Tick(time);
        CheckServerSilence(main);
        return main.sbStatusBar.IsPanelWarning(Panel::Server);
    };
    EXPECT_FALSE(warnsAfter(59s));
    EXPECT_TRUE(warnsAfter(1s) && warnsAfter(0s));
    EXPECT_EQ(program.notices.lines.size(), 1U);
    EXPECT_NE(main.sbStatusBar.Notice(), "");
    EXPECT_EQ(TipText(),
              "Connected for 1 minute; 0 lines heard; silent for 1 minute: the connection may be lost; login "
              "not answered yet");
    EXPECT_EQ(Shown(), "Connected to prime:14580");

    program.wires.Say("# keepalive\r\n");
    EXPECT_FALSE(warnsAfter(0s));
    EXPECT_EQ(main.sbStatusBar.Notice(), "");
    EXPECT_TRUE(warnsAfter(61s));
    EXPECT_FALSE(warnsAfter(30s)); // Lost, and with it the warning.
    EXPECT_EQ(Shown(), kFailed);
    EXPECT_EQ(program.notices.lines.size(), 2U);
}

// Of the first nothing may be heard any more: its late loss would end the second.
TEST_F(ServerLinkTest, ASecondConnectTakesThePlaceOfTheFirst)
{
    form.bReconnectServer = true;
    ConnectServerLink(main);
    form.sServerAddress = "second";
    ConnectServerLink(main);
    EXPECT_TRUE(program.wires.Written().starts_with("user "));
    program.wires.Use("connect prime");
    EXPECT_FALSE(program.wires.IsKept());
    Lose();
    EXPECT_EQ(Shown(), "Connected to second:14580");
    EXPECT_TRUE(main.links.bLoginSent);
    program.wires.Use("connect second");
    EXPECT_TRUE(program.wires.IsKept());
}

TEST_F(ServerLinkTest, TheDialogTrimsTheBackupsFieldsAndShowsThemOnlyWithTheTick)
{
    form.sBackupServer = " spare ";
    form.iReconnectAttempt = 3;
    frmTcp_Load(form);
    EXPECT_EQ(form.cboBackupServer, "");
    form.chkReconnect = true;
    frmTcp_chkReconnect_Click(form);
    EXPECT_EQ(form.cboBackupServer + form.txtNumber, "spare3");

    form.cboServer = " prime ";
    form.cboBackupServer = " other ";
    form.cboBackupPort = " ";
    form.txtNumber = "";
    ASSERT_TRUE(frmTcp_Accept(main));
    EXPECT_EQ(form.sServerAddress + '|' + form.sBackupServer, " prime |other");
    EXPECT_EQ(form.iBackupPort, -1);
    EXPECT_EQ(form.iReconnectAttempt, 0);
    for (const char* server : {" other ", " prime "})
        EXPECT_TRUE(main.serverLists.ServerList.Contains(server)) << server;
}

// A tick changes its own field; accepted as it comes the dialog changes nothing.
TEST_F(ServerLinkTest, TheDialogsTicksHoldTheirOwnFields)
{
    constexpr std::array kFields = {&ServerForm::bServerBeacon, &ServerForm::bAddTCPSymbol, &ServerForm::bAutoTCP,
                                    &ServerForm::bBackupBeacon};
    constexpr std::array kBoxes = {&ServerForm::chkServerBeacon, &ServerForm::chkAdd, &ServerForm::chkAuto,
                                   &ServerForm::chkBackupBeacon};
    const auto ticks = [&] {
        std::string shown;
        for (const auto field : kFields)
            shown += form.*field ? '1' : '0';
        return shown;
    };
    form.bReconnectServer = true;
    for (std::size_t i = 0; i < kBoxes.size(); ++i) {
        std::string wanted = ticks();
        wanted[i] ^= '0' ^ '1';
        frmTcp_Load(form);
        form.*kBoxes[i] = !(form.*kBoxes[i]);
        for (int times = 0; times < 2; ++times) {
            ASSERT_TRUE(frmTcp_Accept(main));
            EXPECT_EQ(ticks(), wanted);
            frmTcp_Load(form);
        }
    }
    EXPECT_TRUE(main.serverLists.PortList.Contains("10152"));
}

TEST_F(ServerLinkTest, DialogStaysOpenForWhatIsNoPort)
{
    struct Case {
        std::string ServerForm::*field;
        const char* text;
        const char* message;
    };
    constexpr const char* kMissing = "You must enter a server address and port number!";
    constexpr const char* kPort = "Please enter a positive interger port number!";
    constexpr const char* kBackupPort = "Please enter a positive interger backup port number!";
    constexpr const char* kNumber = "Please enter a positive interger for number of attempts!";
    for (const Case& row :
         {Case{&ServerForm::cboServer, "", kMissing}, Case{&ServerForm::cboPort, "", kMissing},
          Case{&ServerForm::cboPort, "-1", kPort}, Case{&ServerForm::cboPort, "http", kPort},
          Case{&ServerForm::cboPort, "40000", kPort}, // No 16-bit number.
          Case{&ServerForm::cboBackupPort, "x", kBackupPort}, Case{&ServerForm::txtNumber, "-2", kNumber}}) {
        frmTcp_Load(form);
        form.chkReconnect = true;
        form.*row.field = row.text;
        program.prompts.messages.clear();
        EXPECT_FALSE(frmTcp_Accept(main));
        EXPECT_EQ(program.prompts.messages, std::vector<std::string>{row.message}) << row.text;
        EXPECT_TRUE(form.bCancel);
        EXPECT_EQ(form.iServerPort, 14580);
    }
    EXPECT_EQ(frmTcp_cboPort_LostFocus(form), "");
}

} // namespace
} // namespace ruvenmark
