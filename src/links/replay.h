#pragma once

#include "contracts/byte_link.h"
#include "platform/line_time.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// How fast the times of a log pass. Lines without a time are never waited for.
struct ReplaySpeed {
    std::int32_t times; // As fast as they were heard; 0: nothing is waited for.
    std::string_view caption, brief;
};
inline constexpr std::array kReplaySpeeds = {
    ReplaySpeed{0, "As fast as possible", "Fastest"},
    ReplaySpeed{1, "As heard", "1x"},
    ReplaySpeed{2, "2 times as fast", "2x"},
    ReplaySpeed{5, "5 times as fast", "5x"},
    ReplaySpeed{10, "10 times as fast", "10x"},
    ReplaySpeed{60, "A minute in a second", "60x"},
    ReplaySpeed{600, "Ten minutes in a second", "600x"},
};

// What the operator does with the replay that runs; without one nothing happens.
void ToggleReplayPause(MainWindow& main);
void SetReplaySpeed(MainWindow& main, std::int32_t speed);
// Ahead only: what was heard stays heard, and a pipe cannot be read again. The lines between are heard without a wait.
void JumpInReplay(MainWindow& main, int percent);

// Holds each line back until it is due. Stands as long as the replay.
class ReplayPace {
public:
    explicit ReplayPace(MainWindow& main);
    ~ReplayPace();
    ReplayPace(const ReplayPace&) = delete;
    ReplayPace& operator=(const ReplayPace&) = delete;

    void TellEndIsKnown();
    // Back when the line is due, or the load was ended. Lets events in meanwhile.
    void Await(std::string_view line);
    // Behind a line.
    void Passed(int percent);
    bool IsJumping() const;

private:
    using Time = std::chrono::microseconds; // Of the log.

    void Note(const std::optional<LineTime>& time);
    bool IsDue(Time due);

    MainWindow& m_main;
    Time m_day{0};      // Days that a log without dates has gone through.
    Time m_due{0};      // Of the last line that had a time.
    Time m_position{0}; // How far the log's time has come.
    Moment m_looked;    // When that was reckoned.
};

} // namespace ruvenmark
