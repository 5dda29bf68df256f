#pragma once

#include "support/event_loop.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStringList>
#include <QTcpServer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace ruvenmark {

// The stored port has 16 bits: no port that the system chooses.
inline void Listen(QTcpServer& server)
{
    constexpr int kFirst = 23000, kPorts = 9000;
    for (int i = 0; i < kPorts && !server.isListening(); ++i) // Any of them: tests run side by side.
        server.listen(QHostAddress::LocalHost,
                      static_cast<quint16>(kFirst + QRandomGenerator::global()->bounded(kPorts)));
    ASSERT_TRUE(server.isListening());
}

// The real program as a station without a window, in a folder of its own.
class StationProgram {
public:
    ~StationProgram()
    {
        program.kill();
        program.waitForFinished();
    }

    void Start(const QString& call, const QString& connect, const QStringList& more)
    {
        const QStringList always = {"--headless", "--settings",  folder.filePath("settings.ini"),
                                    "--folder",   folder.path(), "--region",
                                    "2",          "--set",       "Call=" + call,
                                    "--set",      "Dest=APRS",   "--connect",
                                    connect,      "--print",     "counts"};
        program.start(QStringLiteral(RUVENMARK_PROGRAM), always + more);
        ASSERT_TRUE(program.waitForStarted());
    }
    bool Prints(const QByteArray& text)
    {
        return RunUntil([&] { return (out += program.readAllStandardOutput()).contains(text); });
    }
    bool Says(const QByteArray& text)
    {
        return RunUntil([&] { return (err += program.readAllStandardError()).contains(text); });
    }
    // The status, once it has ended.
    int Status()
    {
        RunUntil([&] { return program.state() == QProcess::NotRunning; });
        out += program.readAllStandardOutput();
        err += program.readAllStandardError();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    int End()
    {
        ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
        return Status();
    }
    void Write(const QString& name, const QByteArray& bytes) const // In its folder.
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray File(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    QTemporaryDir folder;
    QProcess program;
    QByteArray out, err; // So far.
};

} // namespace ruvenmark
