#include "links/link_status_rules.h"
#include "links/tnc_form_rules.h"
#include "links/tnc_link.h"
#include "outgoing/send_report.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kPrompt = "cmd:";

// What a TNC that prompts is told while the program puts it back and waits for it.
std::string TypedIn(TestProgram& program, const std::function<void()>& act)
{
    std::string typed;
    program.wires.answer = [&](const std::string& written) {
        typed += written;
        return std::string(kPrompt);
    };
    act();
    program.wires.answer = nullptr;
    return typed + program.wires.Written();
}

struct TncLink : testing::Test {
    TestProgram program;
    MainWindow& main = program.main;
    TncForm& form = main.commDialog;

    const std::string& Panel() const { return main.sbStatusBar.PanelText(ruvenmark::Panel::Tnc); }
    std::string Caption() const { return StateOf(MenuEntry::mnuConnect, {main, nullptr}).caption; }
    // Everything that the program types while the TNC prompts after each line.
    std::string Typed()
    {
        std::string typed;
        for (std::string more = program.wires.Written(); !more.empty(); more = program.wires.Written()) {
            typed += more;
            program.wires.Say(kPrompt);
        }
        return typed;
    }
    void AcceptSerial(bool bGps = false)
    {
        program.dialogs.onRun[Form::commDialog] = [this, bGps](MainWindow& at) {
            form.cboConnect = 0;
            form.cboSerialPort = "/dev/ttyS0";
            form.cboSerialBaud = "9600";
            form.chkTncGps = bGps;
            form.cboSentence = 1;
            form.cboUpdateRate = 19;
            EXPECT_TRUE(commDialog_Accept(at));
        };
    }
    void AcceptAgw()
    {
        program.dialogs.onRun[Form::commDialog] = [this](MainWindow& at) {
            form.cboConnect = 1;
            commDialog_cboConnect_Click(form);
            EXPECT_TRUE(commDialog_Accept(at));
        };
    }
};

// The operator would believe it is on the air.
TEST_F(TncLink, AReportThatTheTncDoesNotTakeIsToldAndTakenBack)
{
    AcceptSerial();
    const auto send = [&](std::string_view text) {
        program.notices.lines.clear();
        SendReport(main, {"N0CALL", "APRS", "", text}, {.bTnc = true});
        EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over TNC at 20:15:03");
    };
    const auto expectTold = [&](const std::string& text) {
        EXPECT_EQ(program.notices.lines.back(), "Not sent over TNC, which refused or was silent: " + text);
        EXPECT_EQ(main.sbStatusBar.Notice(), program.notices.lines.back());
        EXPECT_EQ(main.sbStatusBar.Sent(), "");
    };
    ConnectTnc(main);
    Typed();
    send(">refused");
    for (const char* answer : {"cmd:", "?bad\r\ncmd:", "cmd:"})
        program.wires.Say(answer);
    expectTold(">refused");
    EXPECT_EQ(program.notices.lines.size(), 2U); // Ahead of it, over what reports go.
    send(">to a silent one");
    ConnectTnc(main); // Disconnects.
    expectTold(">to a silent one");
    ConnectTnc(main);
    send(">lost");
    program.wires.Lose();
    expectTold(">lost");
}

TEST_F(TncLink, ASerialConnectSendsTheOperatorsLinesThenThoseOfTheGps)
{
    program.files.texts["/program/tncsettings.txt"] = "MYCALL N0CALL\r\n\r\n MON ON \n";
    program.files.texts["/program/originalsettings.txt"] = "MON OFF";
    AcceptSerial(true);
    ConnectTnc(main);
    EXPECT_EQ(program.wires.opened, "serial /dev/ttyS0 9600 xon");
    EXPECT_EQ(Panel(), "Connected to port /dev/ttyS0 at 9600bps");
    EXPECT_EQ(Caption(), "Disconnect &TNC");
    const std::string typed = Typed();
    EXPECT_THAT(typed,
                testing::ContainsRegex("MYCALL N0CALL\r.*MON ON \r.*GBAUD 4800\rGPSTEXT .GPRMC\rLTMH OFF\rLTM 100\r"));
    EXPECT_EQ(main.gps.GpsUpdateSeconds, 100);

    main.gps.bValidFix = true;
    program.Set("Speed=30");
    const std::string last = TypedIn(program, [&] { ConnectTnc(main); });
    EXPECT_THAT(last, testing::ContainsRegex("LTM 0\r.*MON OFF\r"));
    EXPECT_FALSE(program.wires.IsKept());
    EXPECT_FALSE(main.gps.bValidFix);
    EXPECT_EQ(SettingText(main.Settings, Setting::Speed), "");
    EXPECT_EQ(Panel(), "TNC disconnected");
    EXPECT_EQ(Caption(), "Connect &TNC...");
}

// Without files and a receiver nothing is typed at all: the TNC may be in use by its operator.
TEST_F(TncLink, TheTreesRootConnectsAndWithoutFilesAndGpsNothingIsSent)
{
    program.Select("RF");
    const auto caption = [&] { return StateOf(MenuEntry::mnuPopupConnect, {main, program.Node("RF")}).caption; };
    EXPECT_EQ(caption(), "Connect TNC...");
    AcceptSerial();
    RunMenuEntry(main, MenuEntry::mnuPopupConnect);
    EXPECT_EQ(caption(), "Disconnect TNC");
    RunMenuEntry(main, MenuEntry::mnuPopupConnect);
    EXPECT_THAT(program.wires.Written(), testing::Not(testing::HasSubstr("\r"))); // Nothing but the call to attention.
    EXPECT_EQ(Panel(), "TNC disconnected");
}

// Of a receiver behind a TNC that is gone nothing more is known; of one on a port of its own it still is.
TEST_F(TncLink, FailuresAndLossesShowAndFreeTheLinkAndAReceiversFixGoesWithItsTnc)
{
    program.wires.bRefuse = true;
    AcceptSerial();
    ConnectTnc(main);
    EXPECT_EQ(Panel(), "TNC connection failed");
    EXPECT_FALSE(main.links.bSerialConnected || main.links.aprs);
    program.wires.bRefuse = false;
    for (const bool bBehindTnc : {true, false}) {
        AcceptSerial(bBehindTnc);
        ConnectTnc(main);
        main.gps.bValidFix = true;
        program.Set("Speed=30");
        program.wires.Lose();
        EXPECT_EQ(Panel(), "TNC connection unexpectedly closed");
        EXPECT_FALSE(main.links.bSerialConnected || main.links.aprs);
        EXPECT_EQ(main.gps.bValidFix, !bBehindTnc);
        EXPECT_EQ(SettingText(main.Settings, Setting::Speed), bBehindTnc ? "" : "30");
    }
    AcceptSerial(true);
    ConnectTnc(main);
    program.wires.Tick(std::chrono::seconds(10)); // It does not answer.
    main.gps.bValidFix = true;
    ConnectTnc(main);
    EXPECT_EQ(Panel(), "TNC connection failed");
    EXPECT_FALSE(main.gps.bValidFix);
}

TEST_F(TncLink, TheAgwEngineIsConnectedWhenItSaysSo)
{
    program.files.texts["/program/tncsettings.txt"] = "MYCALL N0CALL";
    AcceptAgw();
    ConnectTnc(main);
    EXPECT_EQ(program.wires.opened, "socket 127.0.0.1 8000");
    EXPECT_EQ(Panel(), "Connecting to AGW Packet Engine");
    EXPECT_EQ(Caption(), "Connect &TNC...");
    ConnectTnc(main); // Asks again; the connect that was under way is let go of.
    EXPECT_EQ(program.dialogs.calls.size(), 2U);
    program.Sink(Channel::RF).SocketConnected();
    EXPECT_EQ(Panel(), "Connected to AGW Packet Engine");
    EXPECT_EQ(Caption(), "Disconnect &TNC");
    program.Sink(Channel::RF).SocketConnectionClosed();
    EXPECT_EQ(Panel(), "AGW connection unexpectedly closed");
    EXPECT_FALSE(main.links.bSocketConnected);
    ConnectTnc(main);
    program.Sink(Channel::RF).SocketConnectionError();
    EXPECT_EQ(Panel(), "AGW connection failed");
    EXPECT_FALSE(main.links.aprs);
}

// Begun at the connect, not before: an engine that is still being called is no link.
TEST_F(TncLink, TheTipTellsWhatTheRadioBrought)
{
    using namespace std::chrono_literals;
    const auto tip = [&] {
        ShowLinkStatus(main);
        return main.sbStatusBar.PanelTip(ruvenmark::Panel::Tnc);
    };
    AcceptAgw();
    ConnectTnc(main);
    EXPECT_EQ(tip(), "");
    program.wires.Open();
    program.Sink(Channel::RF).ReportRawData("N0CALL>APRS:>hi");
    program.Sink(Channel::TCP).ReportRawData("N0CALL>APRS:>hi"); // Not the radio's.
    program.Sink(Channel::RF).ReportRawData("?EH");              // Nobody sent it.
    program.wires.Tick(2s);
    EXPECT_EQ(tip(), "Connected for 2 seconds; 1 packet heard, the last one 2 seconds ago");
    program.wires.Lose();
    EXPECT_EQ(tip(), "");
    AcceptSerial();
    ConnectTnc(main);
    EXPECT_EQ(tip(), "Connected for a moment; 0 packets heard");
    ConnectTnc(main);
    EXPECT_EQ(tip(), "");
}

TEST_F(TncLink, TheStartConnectsWhatWasChosenAndTheStopPutsTheTncBack)
{
    const auto start = [](TestProgram& p, AutoConnect autoConnect) {
        p.store.Set("SerialAutoConnect", "True");
        p.store.Set("SerialPort", "/dev/ttyS0");
        p.store.Set("LastBaudRate", "4800");
        p.store.Set("TncGps", "True");
        p.files.texts["/program/originalsettings.txt"] = "MON OFF";
        StartMainWindow(p.main, autoConnect);
    };
    TestProgram idle(false);
    start(idle, AutoConnect::No);
    EXPECT_EQ(idle.wires.opened, "");

    TestProgram p(false);
    start(p, AutoConnect::Yes);
    EXPECT_EQ(p.wires.opened, "serial /dev/ttyS0 4800 xon");
    EXPECT_THAT(p.dialogs.calls, IsEmpty());
    const std::string typed = TypedIn(p, [&] { StopMainWindow(p.main); });
    EXPECT_THAT(typed, testing::HasSubstr("GPSTEXT \r")); // The sentence's text is not stored.
    EXPECT_THAT(typed, testing::HasSubstr("MON OFF\r"));
    EXPECT_EQ(typed.find("LTM 0\r"), typed.rfind("LTM 0\r")); // That of the connect alone.
    EXPECT_FALSE(p.main.links.aprs);
}

// --- The dialog

TEST_F(TncLink, TheDialogTellsWhatIsMissingInItsOrder)
{
    commDialog_Load(form);
    main.links.bGpsConnected = true;
    main.frmGps.sGPSPort = form.cboSerialPort = "/dev/ttyS1";
    form.cboSerialBaud.clear();
    EXPECT_FALSE(commDialog_Accept(main));
    main.links.bGpsConnected = false;
    EXPECT_FALSE(commDialog_Accept(main));
    form.cboSerialBaud = "fast";
    EXPECT_FALSE(commDialog_Accept(main));
    form.cboConnect = 1;
    for (const char* port : {"", "many", "99999"}) {
        form.txtSocketPort = port;
        EXPECT_FALSE(commDialog_Accept(main));
    }
    EXPECT_EQ(form.lSerialBaud, 0);
    const std::string serial = "You must select a serial port and baud rate!";
    const std::string socket = "You must enter a computer address and socket port number!";
    EXPECT_THAT(program.prompts.messages,
                ElementsAre("You are already connected to GPS on /dev/ttyS1!", serial, serial, socket, socket, socket));
}

// The tick takes effect at once and goes with what cboConnect shows.
TEST_F(TncLink, ConnectUponStartupOutlastsACancel)
{
    program.dialogs.onRun[Form::commDialog] = [this](MainWindow&) {
        form.cboConnect = 1;
        commDialog_cboConnect_Click(form);
        form.chkAuto = true;
        commDialog_chkAuto_Click(form);
        EXPECT_FALSE(IsSerialShown(form) || AreGpsListsEnabled(form));
        form.cboConnect = 0;
        commDialog_cboConnect_Click(form);
        EXPECT_FALSE(form.chkAuto);
        commDialog_Cancel(form);
    };
    ConnectTnc(main);
    EXPECT_TRUE(form.bAutoConnect);
    EXPECT_FALSE(form.bAutoSerialPort);
    EXPECT_EQ(program.wires.opened, "");
    EXPECT_EQ(Panel(), "TNC not connected");
}

// Every control shows its own field and gives it back, by each of the two ways; what is greyed is not taken.
TEST_F(TncLink, TheDialogsControlsHoldTheirOwnFields)
{
    form.sSerialPort = "/dev/tnc";
    form.sSocketAddress = "engine";
    form.iSocketPort = 8001;
    form.lLastBaudRate = 1234; // Typed once; no rate of the list.
    form.iBaudListIndex = -1;
    form.iSentenceIndex = 2;
    const auto stored = [&] {
        SaveCommSettings(main);
        return StoredText(program.store);
    };
    for (int i = 0; i < 4; ++i) { // Each way with the tick on and off.
        form.bConnectSocket = i >= 2;
        form.bTncGps = form.bAddRFSymbol = i % 2 == 0;
        const std::string wanted = stored();
        form.bAddRFSymbol = !form.bAddRFSymbol; // Which the dialog is to turn.
        commDialog_Load(form);
        form.chkAdd = !form.chkAdd;
        if (!AreGpsListsEnabled(form))
            form.cboSentence = form.cboUpdateRate = 0;
        ASSERT_TRUE(commDialog_Accept(main));
        EXPECT_EQ(stored(), wanted);
        EXPECT_EQ(form.sGpsSentence, "$GPGLL"); // Since the first of them.
    }
}

TEST_F(TncLink, TheUpdateRatesAreWhatTheirTextsSay)
{
    for (const auto& [position, seconds] : {std::pair{2, 2}, {10, 10}, {11, 20}, {19, 100}, {20, 150}, {23, 300}}) {
        EXPECT_EQ(UpdateRateSeconds(position), seconds);
        EXPECT_EQ(UpdateRateText(position), "Every " + std::to_string(seconds) + " Seconds");
    }
    EXPECT_EQ(UpdateRateSeconds(-1) + UpdateRateSeconds(32767), 0);
}

} // namespace
} // namespace ruvenmark
