#include "devices/agw_frames.h"
#include "devices/ax25.h"
#include "links/server_link.h"
#include "links/tnc_link.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;

// A sink that keeps one kind of report to itself on one channel would be seen nowhere else.
TEST(ReportSinks, AMessageByEveryLinkIsCountedAndFiled)
{
    TestProgram p;
    SetSetting(p.main.Settings, Setting::Call, "W1AW");
    p.main.frmTcp.sServerAddress = "prime";
    p.main.frmTcp.iServerPort = 14580;
    ConnectServerLink(p.main);
    p.wires.Say("N1CALL>APRS::W1AW     :by the server{1\r\n");

    p.main.commDialog.sSerialPort = "/dev/ttyS0";
    p.main.commDialog.lLastBaudRate = 9600;
    ConnectSerialTnc(p.main);
    p.wires.Say("cmd:N2CALL>APRS::W1AW     :by the TNC{2\r\n");
    ConnectTnc(p.main);

    p.main.commDialog.sSocketAddress = "localhost";
    p.main.commDialog.iSocketPort = 8000;
    ConnectAgw(p.main);
    p.wires.Open();
    AgwFrame frame;
    frame.kind = 'K';
    frame.data = std::string(1, '\0') + MakeUiFrame("N3CALL", "APRS", "", ":W1AW     :by the engine{3");
    p.wires.Say(AgwBytes(frame));

    p.Hear(Channel::FL, "N4CALL>APRS::W1AW     :by a file{4");

    constexpr std::size_t kTextColumn = 4;
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < p.main.messages.lvMessageList.Count(); ++i)
        texts.push_back(p.main.messages.lvMessageList.At(i).Text(kTextColumn));
    EXPECT_THAT(texts, ElementsAre("by the server", "by the TNC", "by the engine", "by a file"));
    EXPECT_EQ(p.sources.Counts().decoded, 4U);
}

} // namespace
} // namespace ruvenmark
