// The real program and other ends of the test's making, over real sockets. What only the whole can show: that bytes
// reach the print, that a loss is told, that a signal ends it well, and what becomes of links that cannot be had.

#include "station_program.h"

#include <QTcpSocket>

namespace ruvenmark {
namespace {

TEST(LinkProgram, LogsInHearsPrintsTellsALossAndEndsOnASignal)
{
    QTcpServer server;
    Listen(server);
    StationProgram station;
    station.Write("igatepw.txt", "n0call:1\r\nw1aw:25988\r\n");
    station.Start("W1AW-7", QStringLiteral("server=127.0.0.1:%1").arg(server.serverPort()),
                  {"--follow", "--print", "tree"});
    QTcpSocket* peer = nullptr;
    ASSERT_TRUE(RunUntil([&] { return (peer = server.nextPendingConnection()) != nullptr; }));
    ASSERT_TRUE(RunUntil([&] { return peer->canReadLine(); }));
    EXPECT_TRUE(peer->readLine().startsWith("user W1AW-7 pass 25988 vers Ruvenmark "));
    peer->write("# logresp W1AW-7 verified, server T2TEST\r\nN0CALL>APRS,TCPIP*:!4903.5");
    peer->flush();
    peer->write("0N/07201.75Whello\nuser W1AW-7 pass 25988 vers X 1\r\n");
    peer->write("N2CALL>APRS:>a\0b\r\nN1CALL>APRS:>busy\r\n", 37);
    peer->close(); // Told once all that came before it is read.
    ASSERT_TRUE(station.Says("APRS server connection failed"));
    ASSERT_TRUE(station.Prints("N2CALL>APRS:>ab\nN1CALL>APRS:>busy\n")) << station.out.toStdString();
    EXPECT_EQ(station.End(), 0);
    EXPECT_TRUE(station.out.contains("TCP reports (3)\n")) << station.out.toStdString();
    EXPECT_FALSE((station.out + station.err).contains("25988")); // The password is nobody's to read.
}

// What a script connects to is not what the operator's window connects to from then on.
TEST(LinkProgram, TellsWhyNothingCouldBeConnectedAndKeepsTheStoredLinks)
{
    const QByteArray stored = "[Settings]\nConnectSocket=True\nSerialPort=/dev/tnc\nLastBaudRate=1200\n"
                              "PrimaryServer=hub.example\nPrimaryPort=10152\nGPSPort=/dev/gps\nGPSBaud=9600\n";
    StationProgram station;
    station.Write("settings.ini", stored);
    station.Start("W1AW-7", "server=127.0.0.1:1,tnc=/dev/no-such-port:9600,gps=/dev/none:4800", {"--for", "1"});
    EXPECT_EQ(station.Status(), 1);
    for (const char* reason : {"refused", "/dev/no-such-port", "/dev/none"})
        EXPECT_TRUE(station.err.contains(reason)) << station.err.toStdString();
    EXPECT_TRUE(station.File("settings.ini").startsWith(stored)) << station.File("settings.ini").toStdString();
}

} // namespace
} // namespace ruvenmark
