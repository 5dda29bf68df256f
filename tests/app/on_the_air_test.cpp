// Another program's modem makes sound of what we send over its packet engine, and its decoder reads the sound: so the
// frames are right to others, too. Skipped where that program is not installed.

#include "station_program.h"

#include <QStandardPaths>

#include <cstdint>

namespace ruvenmark {
namespace {

constexpr std::uint32_t kRate = 44100;

// Raw samples, one channel of 16 bits, as a file that says so.
QByteArray WaveFile(const QByteArray& samples)
{
    QByteArray bytes;
    const auto put = [&bytes](std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    };
    const auto size = static_cast<std::uint32_t>(samples.size());
    bytes += "RIFF";
    put(36 + size, 4);
    bytes += "WAVEfmt ";
    put(16, 4);
    put(1, 2);
    put(1, 2);
    put(kRate, 4);
    put(2 * kRate, 4);
    put(2, 2);
    put(16, 2);
    bytes += "data";
    put(size, 4);
    return bytes + samples;
}

TEST(OnTheAir, WhatWeSendIsReadFromItsSound)
{
    if (QStandardPaths::findExecutable("direwolf").isEmpty() || QStandardPaths::findExecutable("atest").isEmpty())
        GTEST_SKIP() << "direwolf and its atest are not installed";
    StationProgram station;
    const QString air = station.folder.filePath("air.raw"), sound = station.folder.filePath("air.wav");
    quint16 port = 0;
    {
        QTcpServer free; // A port that nobody uses.
        Listen(free);
        port = free.serverPort();
    }
    station.Write(".asoundrc",
                  "pcm.air { type file slave.pcm \"null\" file \"" + air.toUtf8() + "\" format \"raw\" }\n");
    station.Write("modem.conf", "ADEVICE stdin air\nARATE 44100\nCHANNEL 0\nMYCALL N0CALL\nMODEM 1200\nTXDELAY 10\n"
                                "TXTAIL 5\nSLOTTIME 1\nPERSIST 255\nKISSPORT 0\nAGWPORT " +
                                    QByteArray::number(port) + "\n");
    QProcess modem;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", station.folder.path());
    modem.setProcessEnvironment(environment);
    modem.setProcessChannelMode(QProcess::MergedChannels);
    modem.start("direwolf", {"-t", "0", "-c", station.folder.filePath("modem.conf")});
    QByteArray said;
    ASSERT_TRUE(RunUntil([&] {
        return (said += modem.readAll()).contains("Ready to accept AGW client") ||
               modem.state() == QProcess::NotRunning;
    }));

    station.Start("W1AW-7", QStringLiteral("agw=127.0.0.1:%1").arg(port), {"--set",  "Lat=-33.9",
                                                                           "--set",  "Lon=151.2",
                                                                           "--set",  "WindDir=220",
                                                                           "--set",  "WindSpeed=4",
                                                                           "--set",  "Gust=5",
                                                                           "--set",  "Temperature=-10",
                                                                           "--set",  "Path=WIDE1-1,WIDE2-1",
                                                                           "--send", "position",
                                                                           "--send", "weather",
                                                                           "--send", "message:N0CALL-15:hello",
                                                                           "--send", "object:FLOOD:47.1,-8.2:up"});
    EXPECT_EQ(station.Status(), 0) << station.err.toStdString() << said.toStdString();
    // It tells a packet when it has sent it.
    EXPECT_TRUE(RunUntil([&] { return (said += modem.readAll()).contains("FLOOD    "); })) << said.toStdString();
    QByteArray read;
    EXPECT_TRUE(RunUntil([&] { // The last samples may still be on their way to the file.
        station.Write("air.wav", WaveFile(station.File("air.raw")));
        QProcess decoder;
        decoder.start("atest", {sound});
        decoder.waitForFinished();
        read = decoder.readAll();
        return read.contains("4 packets decoded");
    })) << read.toStdString();
    const QByteArray header = "W1AW-7>APRS,WIDE1-1,WIDE2-1:";
    for (const char* text : {"!3354.00S/15112.00E)", "c220s004g005t-10r000p000P000h00b00000", ":N0CALL-15:hello{1",
                             "z4706.00N\\00812.00W)up"}) {
        const auto at = read.indexOf(text);
        EXPECT_GT(at, 0) << text << "\n" << read.toStdString();
        EXPECT_TRUE(read.left(at).lastIndexOf(header) > read.left(at).lastIndexOf('\n')) << read.toStdString();
    }
    modem.kill();
    modem.waitForFinished();
}

} // namespace
} // namespace ruvenmark
