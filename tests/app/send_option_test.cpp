// Reports that the command line asks for, over real wires: what went out, what is said of it, and the status.

#include "server_hub.h"
#include "support/pseudo_terminal.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <utility>

namespace ruvenmark {
namespace {

TEST(SendOption, SendsInItsOrderOverTheServerAndSaysSo)
{
    ServerHub hub;
    StationProgram station;
    station.Start("W1AW-7", hub.Link(),
                  {"--set", "Lat=47.5", "--set", "Lon=8.25", "--send", "position", "--send", "status:on the hill",
                   "--send", "message:bln1:net: 9", "--send", "object:FLOOD:47.1,-8.2:"});
    EXPECT_EQ(station.Status(), 0);
    for (const char* line : {"W1AW-7>APRS,TCPIP*:!4730.00N/00815.00E)", "W1AW-7>APRS,TCPIP*:>on the hill",
                             "W1AW-7>APRS,TCPIP*::BLN1     :net: 9"}) {
        EXPECT_TRUE(station.err.contains(QByteArray("ruvenmark: Sent over server: ") + line + "\n"))
            << station.err.toStdString();
        EXPECT_TRUE(RunUntil([&] { return hub.Count(QByteArray(line) + "\r\n") > 0; })) << line;
    }
    EXPECT_TRUE(RunUntil([&] { return hub.Count("z4706.00N\\00812.00W)\r\n") == 1; }));
}

// A script must learn that a report went nowhere, and why; the others go all the same.
TEST(SendOption, WhatGoesNowhereMakesTheStatusOne)
{
    ServerHub hub;
    StationProgram refused;
    refused.Start("W1AW-7", hub.Link(),
                  {"--send", "position", "--send", "weather", "--send", "status:", "--send", "message:TENLETTERS:hi",
                   "--send", "object:FLOOD:91,8:x", "--send", "status:this one goes"});
    EXPECT_EQ(refused.Status(), 1);
    for (const char* reason :
         {"position was not sent: the settings Call, Lat and Lon are needed",
          "weather was not sent: the settings Call, WindDir, WindSpeed, Gust and Temperature are needed",
          "status was not sent: Status field can not be empty!",
          "message to TENLETTERS was not sent: Recipient call sign can not be longer than 9 characters!",
          "object FLOOD was not sent: Enter a value between -90 and 90 for latitude!"})
        EXPECT_TRUE(refused.err.contains(reason)) << reason << "\n" << refused.err.toStdString();
    EXPECT_TRUE(RunUntil([&] { return hub.Count(":>this one goes\r\n") == 1; }));
    EXPECT_EQ(hub.Count(""), 1U);

    StationProgram alone;
    alone.Start("W1AW-7", "server=127.0.0.1:1", {"--send", "status:hi"});
    EXPECT_EQ(alone.Status(), 1);
    EXPECT_TRUE(alone.err.contains("status was not sent: nothing is connected")) << alone.err.toStdString();
    EXPECT_EQ(alone.File("Sent.txt"), "(no file)");
}

// A TNC that answers each line.
class TncAtAPort {
public:
    explicit TncAtAPort(std::string answer)
        : m_answer(std::move(answer)), m_held(open(m_port.Name().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, [this] { Read(); });
    }
    TncAtAPort(const TncAtAPort&) = delete;
    TncAtAPort& operator=(const TncAtAPort&) = delete;
    ~TncAtAPort() { close(m_held); }
    QString Link() const { return QStringLiteral("tnc=%1:9600").arg(QString::fromStdString(m_port.Name())); }

    std::string typed;

private:
    void Read()
    {
        const std::size_t answered = typed.size();
        typed = m_port.Heard();
        for (const char c : typed.substr(answered))
            if (c == '\x03' || c == '\r')
                m_port.Say(c == '\r' ? m_answer : "\r\ncmd:");
    }

    PseudoTerminal m_port;
    std::string m_answer;
    int m_held; // Nothing is lost between two who open it.
    QSocketNotifier m_notifier{m_port.Number(), QSocketNotifier::Read};
};

TEST(SendOption, WaitsForTheTncsPrompt)
{
    TncAtAPort tnc("\r\ncmd:");
    StationProgram station;
    station.Start("W1AW-7", tnc.Link(), {"--send", "status:here"});
    EXPECT_EQ(station.Status(), 0);
    EXPECT_TRUE(station.err.contains("Sent over TNC: >here\n")) << station.err.toStdString();
    EXPECT_NE(tnc.typed.find("MYCALL W1AW-7\rUNPROTO APRS VIA WIDE2-2\rCONV\r>here\r"), std::string::npos) << tnc.typed;

    TncAtAPort stubborn("\r\n?EH\r\ncmd:"); // It would send under another call.
    StationProgram other;
    other.Start("W1AW-7", stubborn.Link(), {"--send", "status:here"});
    EXPECT_EQ(other.Status(), 1);
    EXPECT_EQ(other.err.count("Not sent over TNC"), 1) << other.err.toStdString();
    EXPECT_EQ(stubborn.typed.find(">here"), std::string::npos);
}

} // namespace
} // namespace ruvenmark
