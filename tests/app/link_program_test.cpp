// The real program and a server of the test's making, over real sockets. What only the whole can show: that bytes reach
// the print, that nothing of a flood is lost, that a loss leads to the backup server, and that a signal ends it well.

#include "station_program.h"

#include <QTcpSocket>

namespace ruvenmark {
namespace {

class LinkProgram : public testing::Test {
protected:
    void SetUp() override
    {
        Listen(server);
        ASSERT_TRUE(folder.isValid());
    }
    void TearDown() override
    {
        program.kill();
        program.waitForFinished();
    }

    void Start(const QStringList& more)
    {
        const QString address = QStringLiteral("server=127.0.0.1:%1").arg(server.serverPort());
        const QStringList always = {"--headless", "--settings",  folder.filePath("settings.ini"),
                                    "--folder",   folder.path(), "--region",
                                    "2",          "--set",       "Call=W1AW-7",
                                    "--connect",  address};
        program.start(QStringLiteral(RUVENMARK_PROGRAM), always + more);
        ASSERT_TRUE(program.waitForStarted());
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
    bool Prints(const QByteArray& text)
    {
        return RunUntil([&] { return (out += program.readAllStandardOutput()).contains(text); });
    }
    bool Says(const QByteArray& text)
    {
        return RunUntil([&] { return (err += program.readAllStandardError()).contains(text); });
    }
    // The status; what is printed meanwhile is kept.
    int End()
    {
        ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
        RunUntil([&] {
            out += program.readAllStandardOutput();
            return program.state() == QProcess::NotRunning;
        });
        out += program.readAllStandardOutput();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    void WritePassword() const
    {
        QFile file(folder.filePath("igatepw.txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("n0call:1\r\nw1aw:25988\r\n");
    }

    QTemporaryDir folder;
    QTcpServer server;
    QProcess program;
    QByteArray out, err;
};

TEST_F(LinkProgram, LogsInHearsPrintsAndEndsOnASignal)
{
    WritePassword();
    Start({"--follow", "--print", "tree"});
    QTcpSocket* peer = Login(server);
    ASSERT_NE(peer, nullptr);
    peer->write("# logresp W1AW-7 verified, server T2TEST\r\nN0CALL>APRS,TCPIP*:!4903.5");
    peer->flush();
    peer->write("0N/07201.75Whello\nN1CALL>APRS:>busy\r\n");
    ASSERT_TRUE(Prints("N1CALL>APRS:>busy\n"));
    EXPECT_EQ(End(), 0);
    EXPECT_TRUE(out.contains("TCP reports (2)\n")) << out.toStdString();
    EXPECT_FALSE((err + program.readAllStandardError()).contains("25988")); // The password is nobody's to read.
}

TEST_F(LinkProgram, LosesNothingOfAFloodNorMemoryToALineWithoutAnEnd)
{
    WritePassword();
    Start({"--print", "counts"});
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

TEST_F(LinkProgram, GoesToTheBackupServerWhenTheConnectionIsLost)
{
    WritePassword();
    QTcpServer backup;
    Listen(backup);
    Start({"--set", "ReconnectServer=True", "--set", "BackupServer=127.0.0.1", "--set",
           QStringLiteral("BackupPort=%1").arg(backup.serverPort())});
    QTcpSocket* peer = Login(server);
    ASSERT_NE(peer, nullptr);
    peer->close();
    ASSERT_NE(Login(backup), nullptr);
    EXPECT_TRUE(Says(" [B]"));
    EXPECT_EQ(End(), 0);
}

TEST_F(LinkProgram, TellsWhyNothingCouldBeConnected)
{
    server.close();
    program.start(QStringLiteral(RUVENMARK_PROGRAM),
                  {"--headless", "--settings", folder.filePath("settings.ini"), "--folder", folder.path(), "--region",
                   "2", "--connect", "server=127.0.0.1:1,tnc=/dev/no-such-port:9600", "--for", "1"});
    ASSERT_TRUE(RunUntil([&] { return program.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program.exitCode(), 1);
    err = program.readAllStandardError();
    EXPECT_TRUE(err.contains("refused")) << err.toStdString();
    EXPECT_TRUE(err.contains("/dev/no-such-port")) << err.toStdString();
}

} // namespace
} // namespace ruvenmark
