#include "platform/failure.h"
#include "ports/noting_sink.h"
#include "ports/qt_byte_links.h"
#include "support/pseudo_terminal.h"

#include <gtest/gtest.h>

#include <ctime>
#include <termios.h>
#include <thread>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;

struct SerialWire : testing::Test {
    std::unique_ptr<IByteLink> Open(std::int32_t baud = 9600, SerialFlow flow = SerialFlow::XonXoff)
    {
        return links.OpenSerial(terminal.Name(), baud, flow, sink);
    }

    QtByteLinks links;
    NotingSink sink;
    PseudoTerminal terminal;
};

TEST_F(SerialWire, CarriesBytesBothWaysAndTicks)
{
    const auto link = Open();
    termios settings{};
    ASSERT_EQ(tcgetattr(terminal.Number(), &settings), 0);
    EXPECT_EQ(settings.c_iflag & (IXON | IXOFF), static_cast<tcflag_t>(IXON | IXOFF));
    EXPECT_EQ(settings.c_lflag & (ICANON | ECHO), 0U);

    const std::string all("\x03\x1A\xFF\0\r\n", 6); // None of them may be turned into something else.
    link->Write(all);
    EXPECT_TRUE(RunUntil([&] { return terminal.Heard() == all; }));
    terminal.Say(all);
    EXPECT_TRUE(sink.bytes.empty()); // Only the loop tells.
    EXPECT_TRUE(RunUntil([&] { return sink.bytes == all && sink.ticks >= 2; }));
    EXPECT_EQ(sink.opened, 0);
}

// Swallowed, they would make every binary packet that holds them a broken one.
TEST_F(SerialWire, WithoutFlowControlXonAndXoffAreBytes)
{
    const auto link = Open(19200, SerialFlow::None);
    terminal.Say("a\x13 b\x11 c");
    EXPECT_TRUE(RunUntil([&] { return sink.bytes.ends_with('c'); }));
    EXPECT_EQ(sink.bytes, "a\x13 b\x11 c");
    link->Write("d");
    EXPECT_TRUE(RunUntil([&] { return terminal.Heard() == "d"; }));
}

TEST_F(SerialWire, WaitsWithoutTellingTheSink)
{
    const auto link = Open();
    link->Write("MYCALL\r");
    EXPECT_TRUE(link->Wait(20ms).bytes.empty());
    EXPECT_EQ(terminal.Heard(), "MYCALL\r"); // A wait sends what was written.
    terminal.Say("cmd:");
    EXPECT_EQ(link->Wait(30s).bytes, "cmd:");
    RunFor(50ms);
    EXPECT_TRUE(sink.bytes.empty()); // Not told a second time.
    terminal.HangUp();
    EXPECT_THROW(link->Wait(30s), Failure);
    EXPECT_TRUE(RunUntil([&] { return sink.lost == 1; }));
}

// An answer that waits was not late: a connect to a silent server holds the loop up for longer than most limits.
TEST_F(SerialWire, WhatCameWhileTheLoopStoodStillIsToldBeforeTheNextTick)
{
    const auto link = Open();
    ASSERT_TRUE(RunUntil([&] { return sink.ticks == 1; }));
    std::string toldBefore = "no tick";
    sink.onTick = [&] { toldBefore = sink.bytes; };
    terminal.Say("cmd:");
    std::this_thread::sleep_for(1300ms);
    ASSERT_TRUE(RunUntil([&] { return sink.ticks > 1; }));
    EXPECT_EQ(toldBefore, "cmd:");
}

// A port whose other end is gone would tell so without pause, at the cost of a processor.
TEST_F(SerialWire, TellsAHangUpOnceAndCostsNothingAfterwards)
{
    const auto link = Open();
    terminal.HangUp();
    ASSERT_TRUE(RunUntil([&] { return sink.lost > 0; }));
    const std::clock_t begun = std::clock();
    const int ticks = sink.ticks;
    RunUntil([&] { return sink.ticks >= ticks + 4; });
    EXPECT_LT(std::clock() - begun, CLOCKS_PER_SEC / 2);
    EXPECT_EQ(sink.lost, 1);
    EXPECT_THROW(link->Write("x"), Failure);
}

// The end of a report that is the last thing said would be missing at 1200 baud, though it was told as sent.
TEST_F(SerialWire, ClosingWaitsWhileBytesGoOut)
{
    const std::string all(60'000, 'x'); // More than the system holds.
    auto link = Open(1200);
    link->Write(all);
    std::jthread slow([&] {
        for (int i = 0; i < 500 && terminal.Heard().size() < all.size(); ++i)
            std::this_thread::sleep_for(20ms);
    });
    link.reset();
    slow.join();
    EXPECT_EQ(terminal.Heard(), all);
}

TEST_F(SerialWire, SaysWhyAPortIsNotOpened)
{
    try {
        links.OpenSerial("/dev/no-such-port", 9600, SerialFlow::XonXoff, sink);
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_NE(std::string(failure.what()).find("cannot open /dev/no-such-port: "), std::string::npos);
    }
    EXPECT_THROW(Open(0), Failure);
}

} // namespace
} // namespace ruvenmark
