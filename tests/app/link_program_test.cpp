// The real program and other ends of the test's making, over real sockets and pseudo terminals. What only the whole can
// show: that bytes reach the print, that nothing of a flood is lost, that a loss leads to the backup server, that a
// dead port costs nothing, and that a signal ends it well.

#include "station_program.h"
#include "support/pseudo_terminal.h"

#include <QElapsedTimer>
#include <QStandardPaths>
#include <QTcpSocket>

namespace ruvenmark {
namespace {

class LinkProgram : public testing::Test, protected StationProgram {
protected:
    void SetUp() override
    {
        Listen(server);
        ASSERT_TRUE(folder.isValid());
    }

    void StartWith(const QString& links, const QStringList& more) { Start("W1AW-7", links, more); }
    void StartAtServer(const QStringList& more)
    {
        Write("igatepw.txt", "n0call:1\r\nw1aw:25988\r\n");
        StartWith(QStringLiteral("server=127.0.0.1:%1").arg(server.serverPort()), more);
    }
    // The next connection, once its login line has come.
    QTcpSocket* Login(QTcpServer& at)
    {
        QTcpSocket* peer = nullptr;
        QByteArray line;
        if (!RunUntil([&] {
                peer = peer ? peer : at.nextPendingConnection();
                return peer && (line += peer->readAll()).endsWith("\r\n");
            }))
            return nullptr;
        EXPECT_TRUE(line.startsWith("user W1AW-7 pass 25988 vers Ruvenmark ")) << line.toStdString();
        return peer;
    }
    // Of the program up to now, in seconds.
    double ProcessorTime() const
    {
        QFile file(QStringLiteral("/proc/%1/stat").arg(program.processId()));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QByteArray all = file.readAll();
        const QList<QByteArray> fields = all.mid(all.lastIndexOf(')') + 2).split(' ');
        constexpr int kUser = 11, kSystem = 12; // Behind the name.
        return (fields[kUser].toDouble() + fields[kSystem].toDouble()) / static_cast<double>(sysconf(_SC_CLK_TCK));
    }

    QTcpServer server;
};

TEST_F(LinkProgram, LogsInHearsPrintsAndEndsOnASignal)
{
    StartAtServer({"--follow", "--print", "tree"});
    QTcpSocket* peer = Login(server);
    ASSERT_NE(peer, nullptr);
    peer->write("# logresp W1AW-7 verified, server T2TEST\r\nN0CALL>APRS,TCPIP*:!4903.5");
    peer->flush();
    peer->write("0N/07201.75Whello\nuser W1AW-7 pass 25988 vers X 1\r\n");
    peer->write("N2CALL>APRS:>a\0b\r\nN1CALL>APRS:>busy\r\n", 37);
    ASSERT_TRUE(Prints("N2CALL>APRS:>ab\nN1CALL>APRS:>busy\n")) << out.toStdString();
    EXPECT_EQ(End(), 0);
    EXPECT_TRUE(out.contains("TCP reports (3)\n")) << out.toStdString();
    EXPECT_FALSE((out + err).contains("25988")); // The password is nobody's to read.
}

TEST_F(LinkProgram, LosesNothingOfAFloodNorMemoryToALineWithoutAnEnd)
{
    StartAtServer({});
    QTcpSocket* peer = Login(server);
    ASSERT_NE(peer, nullptr);
    constexpr int kLines = 50'000;
    QByteArray flood;
    for (int i = 0; i < kLines; ++i)
        flood += "N" + QByteArray::number(i % 1000) + "CALL>APRS:!4903.50N/07201.75Wflood\r\n";
    flood += QByteArray(10'000'000, 'x') + "\r\n" + QByteArray("a\0b\r\n", 5);
    peer->write(flood);
    ASSERT_TRUE(RunUntil([&] { return peer->bytesToWrite() == 0; }));
    peer->close(); // A loss is told once all that came before it is read.
    ASSERT_TRUE(Says("APRS server connection failed"));
    EXPECT_EQ(End(), 0);
    EXPECT_TRUE(out.contains("decoded: 50000\n")) << out.toStdString();
}

// A server that takes calls and drops them is not called without a pause, and is left for the backup in the end.
TEST_F(LinkProgram, TriesThreeTimesAndGoesToTheBackupServerOnTheFourthLoss)
{
    QTcpServer backup;
    Listen(backup);
    StartAtServer({"--set", "ReconnectServer=True", "--set", "ReconnectAttempt=3", "--set", "BackupServer=127.0.0.1",
                   "--set", QStringLiteral("BackupPort=%1").arg(backup.serverPort())});
    for (const char* mark : {" [1]", " [2]", " [3]", " [B]"}) {
        QTcpSocket* peer = Login(server);
        ASSERT_NE(peer, nullptr);
        EXPECT_FALSE(err.contains(mark));
        QElapsedTimer sinceLogin;
        sinceLogin.start();
        peer->close();
        ASSERT_TRUE(Says(mark)) << err.toStdString();
        EXPECT_GE(sinceLogin.elapsed(), 4000) << mark; // Five seconds, counted from its connect.
    }
    ASSERT_NE(Login(backup), nullptr);
    EXPECT_FALSE(server.hasPendingConnections());
    EXPECT_EQ(End(), 0);
}

// The system tells of a dead port without pause; who listens on uses up a processor.
TEST_F(LinkProgram, APortThatHangsUpIsToldOnceAndCostsNothing)
{
    PseudoTerminal tnc, gps;
    const auto links = QStringLiteral("tnc=%1:9600,gps=%2:4800");
    StartWith(links.arg(QString::fromStdString(tnc.Name()), QString::fromStdString(gps.Name())), {"--follow"});
    ASSERT_TRUE(Says("Connected to port "));
    ASSERT_TRUE(Says("Acquiring GPS..."));
    tnc.Say("cmd:N0CALL>APRS:>by radio\r\n");
    ASSERT_TRUE(Prints("N0CALL>APRS:>by radio\n"));
    tnc.HangUp();
    gps.HangUp();
    ASSERT_TRUE(Says("TNC connection unexpectedly closed"));
    ASSERT_TRUE(Says("GPS connection error"));
    QElapsedTimer passed;
    passed.start();
    const double before = ProcessorTime();
    RunUntil([&] { return passed.hasExpired(2000); });
    EXPECT_LT(ProcessorTime() - before, static_cast<double>(passed.elapsed()) / 1000 / 10);
    EXPECT_EQ(End(), 0);
    EXPECT_EQ(err.count("TNC connection unexpectedly closed"), 1) << err.toStdString();
    EXPECT_EQ(err.count("GPS connection error"), 1) << err.toStdString();
}

// A packet engine of others, with the tones of a packet played to it.
TEST_F(LinkProgram, HearsAPacketByDirewolf)
{
    const QString engine = QStandardPaths::findExecutable("direwolf");
    const QString tones = QStandardPaths::findExecutable("gen_packets");
    if (engine.isEmpty() || tones.isEmpty())
        GTEST_SKIP() << "direwolf is not installed";
    const quint16 port = server.serverPort();
    server.close();
    Write("direwolf.conf",
          "ADEVICE stdin null\nARATE 44100\nACHANNELS 1\nCHANNEL 0\nMYCALL N0CALL\nMODEM 1200\nKISSPORT 0\n"
          "AGWPORT " +
              QByteArray::number(port) + "\n");
    Write("packets.txt", "N1CALL-9>APRS,WIDE1-1:!4903.50N/07201.75W>by radio\n");
    ASSERT_EQ(QProcess::execute(tones, {"-o", folder.filePath("tones.wav"), folder.filePath("packets.txt")}), 0);
    constexpr int kWaveHeader = 44;
    const QByteArray audio = File("tones.wav").mid(kWaveHeader);

    QProcess direwolf;
    direwolf.start(engine, {"-c", folder.filePath("direwolf.conf"), "-t", "0", "-q", "d", "-"});
    QByteArray said;
    ASSERT_TRUE(RunUntil([&] { return (said += direwolf.readAll()).contains("Ready to accept AGW"); }))
        << said.toStdString();
    StartWith(QStringLiteral("agw=127.0.0.1:%1").arg(port), {"--follow", "--print", "tree"});
    ASSERT_TRUE(Says("Connected to AGW Packet Engine"));
    QElapsedTimer played; // Again and again: the engine takes the request to hear frames when it pleases.
    ASSERT_TRUE(RunUntil([&] {
        if (!played.isValid() || played.hasExpired(1000)) {
            direwolf.write(audio);
            played.start();
        }
        return (out += program.readAllStandardOutput())
            .contains("N1CALL-9>APRS,WIDE1-1:!4903.50N/07201.75W>by radio\n");
    })) << out.toStdString();
    direwolf.closeWriteChannel(); // It ends with its audio.
    EXPECT_TRUE(Says("AGW connection unexpectedly closed"));
    EXPECT_EQ(End(), 0);
    EXPECT_TRUE(out.contains("RF reports (1)\n")) << out.toStdString();
}

// What a script connects to is not what the operator's window connects to from then on.
TEST_F(LinkProgram, TellsWhyNothingCouldBeConnectedAndKeepsTheStoredLinks)
{
    const QByteArray stored = "[Settings]\nConnectSocket=True\nSerialPort=/dev/tnc\nLastBaudRate=1200\n"
                              "PrimaryServer=hub.example\nPrimaryPort=10152\nGPSPort=/dev/gps\nGPSBaud=9600\n";
    {
        QFile settings(folder.filePath("settings.ini"));
        ASSERT_TRUE(settings.open(QIODevice::WriteOnly) && settings.write(stored) == stored.size());
    }
    server.close();
    StartWith("server=127.0.0.1:1,tnc=/dev/no-such-port:9600,gps=/dev/none:4800", {"--for", "1"});
    EXPECT_EQ(Status(), 1);
    EXPECT_TRUE(err.contains("refused")) << err.toStdString();
    EXPECT_TRUE(err.contains("/dev/no-such-port")) << err.toStdString();
    EXPECT_TRUE(err.contains("/dev/none")) << err.toStdString();
    EXPECT_TRUE(File("settings.ini").startsWith(stored)) << File("settings.ini").toStdString();
}

} // namespace
} // namespace ruvenmark
