// Another program's modem makes sound of what we send over its packet engine, and hears the sound again: so the frames
// are right to others, too, and theirs to us. Skipped where that program is not installed.

#include "station_program.h"

#include <QElapsedTimer>
#include <QStandardPaths>

namespace ruvenmark {
namespace {

TEST(OnTheAir, WhatWeSendIsHeardFromItsSound)
{
    if (QStandardPaths::findExecutable("direwolf").isEmpty())
        GTEST_SKIP() << "direwolf is not installed";
    StationProgram sender, listener;
    const auto port = [] { // That nobody uses.
        QTcpServer free;
        Listen(free);
        return free.serverPort();
    }();
    sender.Write(".asoundrc", "pcm.air { type file slave.pcm \"null\" format \"raw\" file \"" +
                                  sender.folder.filePath("air.raw").toUtf8() + "\" }\n");
    sender.Write("modem.conf", "ADEVICE stdin air\nARATE 44100\nCHANNEL 0\nMYCALL N0CALL\nMODEM 1200\nTXDELAY 10\n"
                               "TXTAIL 5\nSLOTTIME 1\nPERSIST 255\nKISSPORT 0\nAGWPORT " +
                                   QByteArray::number(port) + "\n");
    QProcess modem;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", sender.folder.path());
    modem.setProcessEnvironment(environment);
    modem.setProcessChannelMode(QProcess::MergedChannels);
    modem.start("direwolf", {"-t", "0", "-c", sender.folder.filePath("modem.conf")});
    QByteArray said;
    const auto modemSays = [&](const char* text) { return (said += modem.readAll()).contains(text); };
    ASSERT_TRUE(RunUntil([&] { return modemSays("Ready to accept AGW client"); })) << said.toStdString();

    const auto engine = QStringLiteral("agw=127.0.0.1:%1").arg(port);
    QStringList reports{"--set", "Path=WIDE1-1,WIDE2-1"};
    for (const char* place : {"Lat=-33.9", "Lon=151.2", "WindDir=220", "WindSpeed=4", "Gust=5", "Temperature=-10"})
        reports << "--set" << place;
    for (const char* report : {"position", "weather", "message:N0CALL-15:hello", "object:FLOOD:47.1,-8.2:up"})
        reports << "--send" << report;
    sender.Start("W1AW-7", engine, reports);
    EXPECT_EQ(sender.Status(), 0) << sender.err.toStdString() << said.toStdString();
    // It tells a packet when it has sent it.
    EXPECT_TRUE(RunUntil([&] { return modemSays("FLOOD    "); })) << said.toStdString();

    listener.Start("N1CALL", engine, {"--follow"});
    ASSERT_TRUE(listener.Says("Connected to AGW Packet Engine"));
    const QByteArray header = "W1AW-7>APRS,WIDE1-1,WIDE2-1:";
    QElapsedTimer
        played; // Again and again: the last samples may come late, and the engine's ear opens when it pleases.
    const auto hears = [&](const char* text) {
        return RunUntil([&] {
            if (!played.isValid() || played.hasExpired(1000)) {
                modem.write(sender.File("air.raw"));
                played.start();
            }
            const QByteArray& out = (listener.out += listener.program.readAllStandardOutput());
            const auto at = out.indexOf(text);
            return at > 0 && out.left(at).lastIndexOf(header) > out.left(at).lastIndexOf('\n');
        });
    };
    for (const char* text : {"!3354.00S/15112.00E)", "c220s004g005t-10r000p000P000h00b00000", ":N0CALL-15:hello{1",
                             "z4706.00N\\00812.00W)up"})
        EXPECT_TRUE(hears(text)) << text << "\n" << listener.out.toStdString() << said.toStdString();
    modem.kill(); // The engine is gone.
    modem.waitForFinished();
    EXPECT_TRUE(listener.Says("AGW connection unexpectedly closed"));
    EXPECT_EQ(listener.End(), 0);
}

} // namespace
} // namespace ruvenmark
