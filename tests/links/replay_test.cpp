#include "links/replay.h"
#include "links/station_files.h"
#include "platform/line_time.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class Replay : public testing::Test {
protected:
    Replay()
    {
        p.yield.onWait = [this](milliseconds atMost) {
            waited += atMost;
            p.wires.Advance(atMost);
            if (whileWaiting)
                whileWaiting();
        };
    }
    static std::string Line(const char* time, const char* call)
    {
        return time + " "s + call + ">APRS:=4903.50N/07201.75W>x\n";
    }
    void Load(std::string text)
    {
        p.files.texts["/day.txt"] = std::move(text);
        LoadStationFile(p.main, "/day.txt");
        EXPECT_FALSE(p.main.replay.bRunning || p.main.replay.bPaused || p.main.replay.jumpTo || p.main.replay.time);
    }
    // How long a log of lines at these times takes.
    milliseconds TimeOf(std::initializer_list<const char*> times)
    {
        std::string text;
        for (const char* time : times)
            text += Line(time, "A");
        waited = 0ms;
        Load(text);
        return waited;
    }
    std::vector<std::string> Stations() { return p.ChildTexts("FLPositions"); }
    static constexpr std::int32_t kAsHeard = 1, kTenTimes = 4;

    TestProgram p;
    milliseconds waited{0};
    std::function<void()> whileWaiting;
};

TEST_F(Replay, LinesComeAtTheirTimesAndAtOnceByDefault)
{
    const std::string text = Line("2026-11-22 10:00:00", "A") + Line("2026-11-22 10:00:04.500", "B") +
                             "C>APRS:=4903.50N/07201.75W>x\n" + Line("2026-11-22 10:00:10", "D");
    Load(text);
    EXPECT_EQ(waited, 0ms);
    p.main.frmImport.speed = kAsHeard;
    Load(text); // A line without a time is not waited for.
    EXPECT_EQ(waited, 10s);
    waited = 0ms;
    p.main.frmImport.speed = kTenTimes;
    Load(text);
    EXPECT_EQ(waited, 1s);
    EXPECT_THAT(Stations(), ElementsAre("A", "B", "C", "D"));
}

// Rounding each distance by itself would make a day of many short ones minutes longer.
TEST_F(Replay, ShortDistancesDoNotAddUpToADelay)
{
    std::string text;
    for (int i = 0; i < 3000; ++i)
        text += Line(("1703419" + std::to_string(100 + i / 10) + "." + std::to_string(i % 10)).c_str(), "A");
    p.main.frmImport.speed = 6; // 600 times: 100 ms of the log are a sixth of a millisecond.
    Load(text);
    EXPECT_NEAR(static_cast<double>(waited.count()), 500, 5);
}

// A log without dates goes on behind midnight; a clock that was set back does not hold the replay up.
TEST_F(Replay, MidnightAndAClockSetBackAreNoLongWait)
{
    p.main.frmImport.speed = kAsHeard;
    EXPECT_EQ(TimeOf({"[23:59:58]", "[00:00:01]", "[00:00:03]"}), 5s);
    EXPECT_EQ(TimeOf({"2026-11-22 10:00:00", "2026-11-22 09:00:00", "2026-11-22 09:00:02"}), 2s);
    // Lines out of order; of the third the day is the one before.
    EXPECT_EQ(TimeOf({"[23:59:59]", "[00:00:00]", "[23:59:59]", "[00:00:02]"}), 3s);
    EXPECT_EQ(TimeOf({"[23:58:00]", "[00:02:00]", "[23:55:00]", "[00:03:00]"}), 12min);
    EXPECT_EQ(TimeOf({"10:00:00", "10:00:05", "10:00:03", "10:00:06"}), 6s);
}

TEST_F(Replay, APauseHoldsLinesBackAndTheRestOfADistanceFollows)
{
    p.main.frmImport.speed = kAsHeard;
    whileWaiting = [&] {
        if (waited == 1s) {
            ToggleReplayPause(p.main);
        } else if (waited == 31s) {
            EXPECT_THAT(Stations(), ElementsAre("A"));
            ToggleReplayPause(p.main);
        }
    };
    Load(Line("10:00:00", "A") + Line("10:00:03", "B") + Line("10:00:04", "C"));
    EXPECT_EQ(waited, 30s + 4s);
}

// Without it a dialog that stood open for minutes would be followed by minutes of the log at once.
TEST_F(Replay, WhatHeldTheProgramUpIsNotCaughtUp)
{
    p.main.frmImport.speed = kAsHeard;
    whileWaiting = [&, bHeld = false]() mutable {
        if (!std::exchange(bHeld, true))
            p.wires.Advance(300s);
    };
    EXPECT_GE(TimeOf({"10:00:00", "10:01:00"}), 58s);
}

TEST_F(Replay, AJumpAheadWaitsForNothingUpToThere)
{
    p.main.frmImport.speed = kAsHeard;
    p.main.frmImport.iFLDelay = 10;
    std::string text;
    for (char minute = '0'; minute <= '9'; ++minute)
        text += Line(("10:0"s + minute + ":00").c_str(), ("A"s + minute).c_str());
    std::size_t stations = 0;
    whileWaiting = [&] {
        if (waited == 1s) {
            JumpInReplay(p.main, 66); // Of the lines behind the first.
        } else if (waited > 1s && stations == 0) {
            stations = Stations().size();
            JumpInReplay(p.main, 30); // Back: nothing.
            p.main.frmImport.speed = 0;
        }
    };
    Load(text);
    EXPECT_EQ(stations, 7U);
    EXPECT_LT(waited, 2s);
    EXPECT_EQ(p.sleep.slept.size(), 5U); // After each line but those that were jumped over.
    EXPECT_EQ(Stations().size(), 10U);   // All of them were heard.
}

TEST_F(Replay, AStopEndsAPauseAndAPipeCannotBeJumpedIn)
{
    whileWaiting = [&] { mnuImportStations_Click(p.main); };
    p.yield.At(1, [&] { ToggleReplayPause(p.main); });
    Load(Line("10:00:00", "A") + Line("10:00:01", "B") + Line("10:00:02", "C"));
    EXPECT_THAT(Stations(), ElementsAre("A"));
    EXPECT_THAT(p.prompts.messages, IsEmpty());

    MemoryStream pipe({Line("10:00:00", "D"), "", "", Line("10:00:01", "E"), Line("10:00:02", "F")}, std::nullopt);
    p.yield.At(p.yield.calls + 1, [&] {
        JumpInReplay(p.main, 90);
        EXPECT_FALSE(p.main.replay.bEndKnown || p.main.replay.jumpTo);
    });
    LoadStationFile(p.main, pipe);
    EXPECT_THAT(Stations(), ElementsAre("A", "D", "E", "F"));
}

TEST(LineTimeTest, IsReadAsTheProgramsThatWriteLogsPutIt)
{
    const auto text = [](std::string_view line) {
        const auto time = TimeOfLine(line);
        return time ? ShownTime(*time) + "+" + std::to_string((time->at % 1s).count()) : "none";
    };
    EXPECT_EQ(text("2023-12-24 12:07:19.102 N0CALL-1 R N1CALL>APRS:x"), "2023-12-24 12:07:19+102");
    EXPECT_EQ(text("2023-12-24T12:07:19Z N1CALL>APRS:x"), "2023-12-24 12:07:19+0");
    EXPECT_EQ(text("2023/12/24 12:07:19 UTC: N1CALL>APRS:x"), "2023-12-24 12:07:19+0");
    EXPECT_EQ(text("[2023-12-24 12:07:19]N1CALL>APRS:x"), "2023-12-24 12:07:19+0");
    EXPECT_EQ(text("[0.3] 12:07 N1CALL>APRS:x"), "12:07:00+0");
    EXPECT_EQ(text("1703419639.5 N1CALL>APRS:x"), "2023-12-24 12:07:19+500");
    // A packet that talks of a time has none in front, and no date or clock of nowhere counts.
    for (const char* line : {"N1CALL>APRS:@12:07:19 x", "[0.3] N1CALL>APRS:x", "99:99:99 N1CALL>APRS:x", "12:07:19", "",
                             ">", "17034196391 N1CALL>APRS:x"})
        EXPECT_EQ(text(line), "none") << line;
    EXPECT_EQ(text("2023-13-44 12:07:19 N1CALL>APRS:x"), "12:07:19+0");
}

} // namespace
} // namespace ruvenmark
