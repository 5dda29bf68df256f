// Every kind of report on every wire, byte for byte: what a slip in the texts, in the order of the commands or in a
// frame's fields would change.

#include "devices/agw_frames.h"
#include "devices/ax25.h"
#include "links/server_link.h"
#include "links/station_files.h"
#include "links/tnc_link.h"
#include "messaging/send_message.h"
#include "outgoing/object_report.h"
#include "outgoing/position_report.h"
#include "outgoing/status_report.h"
#include "outgoing/weather_report.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

namespace ruvenmark {
namespace {

using namespace std::string_literals;
using namespace std::chrono_literals;

void SendObject(MainWindow& main)
{
    mnuSendObject_Click(main);
    main.frmObject.roads.chkRF = main.frmObject.roads.chkTCP = true;
    main.frmObject.shown.txtName = "flood";
    main.frmObject.shown.txtLat = "-33.5";
    main.frmObject.shown.txtLon = "8.25";
    frmObject_Send(main);
}

void SendText(MainWindow& main, std::string_view to, std::string_view text, std::string_view number)
{
    main.frmMessage.roads.chkRF = main.frmMessage.roads.chkTCP = true;
    SendAprsMessage(main, "N0CALL", to, SettingText(main.Settings, Setting::Path), text, number);
}

struct Kind {
    const char* name;
    void (*send)(MainWindow& main);
    std::string_view text;
};
constexpr std::array<Kind, 8> kKinds = {{
    {"position", [](MainWindow& main) { SendPositionReport(main, true); }, "!3730.00N/12215.00W>PHG5232/A=000300hello"},
    {"weather", [](MainWindow& main) { SendWeatherReport(main); }, "_11230115c220s004g005t-05r012p034P056h50b10150"},
    {"status", mnuSendStatus_Click, ">here: > & {1"},
    {"object", SendObject, ";FLOOD    *230115z3330.00S\\00815.00E)"},
    {"message", [](MainWindow& main) { SendText(main, "W1AW", "hello", "12345"); }, ":W1AW     :hello{12345"},
    {"to nine letters", [](MainWindow& main) { SendText(main, "N0CALL-15", "hello", ""); }, ":N0CALL-15:hello{0"},
    {"bulletin", [](MainWindow& main) { SendText(main, "BLN3", "net", ""); }, ":BLN3     :net"},
    {"acknowledgement",
     [](MainWindow& main) {
         main.links.SinkOf(Channel::TCP).ReportAprsMsg({"W1AW-5", "APRS", "", "N0CALL", "hi", "a7"});
     },
     ":W1AW-5   :acka7"},
}};

// A frame as its reader, which knows whole ones only, takes it apart: "K0 N0CALL APRS 0 N0CALL>APRS:>Hi".
std::string ReadFrame(const std::string& bytes)
{
    AgwReader reader;
    reader.Take(bytes);
    const auto frame = reader.Next();
    if (!frame || frame->data.empty() || reader.Next())
        return "not one frame";
    return frame->kind + std::to_string(frame->port) + ' ' + frame->from + ' ' + frame->to + ' ' +
           std::to_string(frame->data[0]) + ' ' + ReadUiFrame(frame->data.substr(1)).value_or("no packet");
}

struct SentBytes : testing::Test {
    SentBytes()
    {
        program.Set("Call=N0CALL Dest=APRS Path=WIDE1-1,WIDE2-1 Lat=37.5 Lon=-122.25 Symbol=9 Alt=300 Comment=hello "
                    "Power=25 Height=40 Gain=3 Directivity=90 BeaconTactical=True WindDir=220 WindSpeed=4 Gust=5 "
                    "Temperature=-5 Rain1=12 Rain24=34 Rain12=56 Humidity=50 Pressure=10150");
        program.dialogs.onRun[Form::frmStatus] = [](MainWindow& shown) {
            shown.frmStatus.roads.chkRF = shown.frmStatus.roads.chkTCP = true;
            shown.frmStatus.txtStatus = "here: > & {1";
            EXPECT_EQ(frmStatus_Accept(shown), "");
        };
        main.commDialog.sSerialPort = "/dev/ttyS0";
        main.commDialog.lLastBaudRate = 9600;
    }
    void ConnectToServer()
    {
        ConnectServerLink(main);
        program.wires.Written();
    }
    void ConnectToAgw()
    {
        ConnectAgw(main);
        program.wires.Open();
        program.wires.Written();
    }
    // What is typed to a TNC that prompts after each line.
    std::string Typed()
    {
        program.wires.Use("serial");
        std::string typed;
        for (int quiet = 0; quiet < 4; program.wires.Tick(1s)) {
            const std::string more = program.wires.Written();
            quiet = more.empty() ? quiet + 1 : 0;
            typed += more;
            if (!more.empty())
                program.wires.Say("\r\ncmd:");
        }
        return typed;
    }
    void EmptyPath()
    {
        program.Set("Path=");
        main.frmObject.calls.Via = main.frmStatus.calls.Via = "";
    }

    TestProgram program;
    MainWindow& main = program.main;
};

TEST_F(SentBytes, ToTheServerWithoutThePath)
{
    ConnectToServer();
    for (const Kind& kind : kKinds) {
        kind.send(main);
        EXPECT_EQ(program.wires.Written(), "N0CALL>APRS,TCPIP*:" + std::string(kind.text) + "\r\n") << kind.name;
    }
}

TEST_F(SentBytes, ToThePacketEngineAsAFrame)
{
    ConnectToAgw();
    for (const bool bPath : {true, false}) {
        if (!bPath)
            EmptyPath();
        for (const Kind& kind : kKinds) {
            main.messages.lvMessageList.Clear();
            kind.send(main);
            EXPECT_EQ(ReadFrame(program.wires.Written()), "K0 N0CALL APRS 0 N0CALL>APRS" +
                                                              std::string(bPath ? ",WIDE1-1,WIDE2-1:" : ":") +
                                                              std::string(kind.text))
                << kind.name;
        }
    }
}

TEST_F(SentBytes, ToTheTncInConverseMode)
{
    ConnectSerialTnc(main);
    Typed();
    for (const bool bPath : {true, false}) {
        if (!bPath)
            EmptyPath();
        const std::string ahead =
            "\x03MYCALL N0CALL\rUNPROTO APRS" + std::string(bPath ? " VIA WIDE1-1,WIDE2-1" : "") + "\rCONV\r";
        for (const Kind& kind : kKinds) {
            kind.send(main);
            EXPECT_EQ(Typed(), ahead + std::string(kind.text) + '\r') << kind.name << bPath;
        }
    }
}

// A report that a later link took would look sent, while the first one, on the air, was not.
TEST_F(SentBytes, AMuteTncKeepsTheServerFromIt)
{
    ConnectSerialTnc(main);
    ConnectToServer();
    program.wires.Tick(10s); // It gives no prompt.
    for (const Kind& kind : kKinds) {
        kind.send(main);
        program.wires.Use("connect");
        EXPECT_EQ(program.wires.Written(), "") << kind.name;
    }
    EXPECT_TRUE(main.messages.lvSentList.IsEmpty());
    Typed(); // There it is again.
    kKinds[0].send(main);
    program.wires.Use("connect");
    EXPECT_NE(program.wires.Written(), "");
}

// Old packets with every link open must not key a transmitter nor answer anybody.
TEST_F(SentBytes, AReplayedFileSendsNothing)
{
    ConnectToAgw();
    ConnectToServer();
    program.files.texts["/old.log"] = "W1AW>APRS::N0CALL   :hi{7\r\nW1AW>APRS::N0CALL   :again{8\r\n"
                                      "W1AW>APRS:?APRS?\r\nW1AW>APRS::N0CALL   :?APRSP\r\n";
    const auto file = program.files.OpenStream("/old.log");
    LoadStationFile(main, *file);
    EXPECT_EQ(program.wires.Written(), "");
    program.wires.Use("socket");
    EXPECT_EQ(program.wires.Written(), "");
    EXPECT_EQ(main.messages.lvMessageList.Count(), 3U);
}

} // namespace
} // namespace ruvenmark
