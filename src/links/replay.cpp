#include "links/replay.h"

#include "core/main_window.h"

#include <algorithm>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr milliseconds kLongestWait{50}; // The operator's buttons act after so long at most.
// What held everything up for longer, such as an open dialog, is not caught up.
constexpr milliseconds kMostCaughtUp{1000};
// Lines that several programs or threads wrote may stand in another order than their times.
constexpr auto kOutOfOrder = 5min;

std::int32_t Times(const MainWindow& main)
{
    const auto speed = static_cast<std::size_t>(main.frmImport.speed);
    return speed < kReplaySpeeds.size() ? kReplaySpeeds[speed].times : 0;
}

} // namespace

void ToggleReplayPause(MainWindow& main)
{
    if (!main.replay.bRunning)
        return;
    main.replay.bPaused = !main.replay.bPaused;
    main.replay.Changed.Raise();
}

void SetReplaySpeed(MainWindow& main, std::int32_t speed)
{
    main.frmImport.speed = speed;
    main.replay.Changed.Raise();
}

void JumpInReplay(MainWindow& main, int percent)
{
    if (!main.replay.bRunning || !main.replay.bEndKnown || percent <= main.sbStatusBar.Progress())
        return;
    main.replay.jumpTo = percent;
    main.replay.Changed.Raise();
}

ReplayPace::ReplayPace(MainWindow& main) : m_main(main), m_looked(main.services.wires.Now())
{
    main.replay.bRunning = true;
    main.replay.Changed.Raise();
}

ReplayPace::~ReplayPace()
{
    ReplayState& replay = m_main.replay;
    replay.bRunning = replay.bPaused = replay.bEndKnown = false;
    replay.time.reset();
    replay.jumpTo.reset();
    replay.Changed.Raise();
}

void ReplayPace::TellEndIsKnown()
{
    m_main.replay.bEndKnown = true;
    m_main.replay.Changed.Raise();
}

bool ReplayPace::IsJumping() const
{
    return m_main.replay.jumpTo.has_value();
}

void ReplayPace::Passed(int percent)
{
    ReplayState& replay = m_main.replay;
    if (!replay.jumpTo || percent < *replay.jumpTo)
        return;
    replay.jumpTo.reset();
    replay.Changed.Raise();
}

void ReplayPace::Note(const std::optional<LineTime>& time)
{
    if (!time)
        return;
    auto& noted = m_main.replay.time;
    const bool bFirst = !noted;
    const bool bNews = bFirst || std::chrono::floor<std::chrono::seconds>(noted->at) !=
                                     std::chrono::floor<std::chrono::seconds>(time->at);
    const bool bOtherForm = !bFirst && noted->bDated != time->bDated; // Nothing tells how far apart they are.
    noted = time;
    if (bNews)
        m_main.replay.Changed.Raise();
    const bool bOneDay = !bFirst && !bOtherForm && !time->bDated;
    if (bOneDay && time->at + m_day + 12h < m_due)
        m_day += 24h;
    Time due = time->at + m_day;
    if (bOneDay && due - 12h > m_due) // Out of order, from before midnight.
        due -= 24h;
    const bool bBack = !bFirst && !bOtherForm && due < m_due;
    if (bBack && m_due - due <= kOutOfOrder)
        return;
    // A time long before the last one's is that of a machine whose clock was set: from there on it goes by the new
    // time.
    if (bFirst || bOtherForm || bBack)
        m_position = due;
    m_due = due;
}

bool ReplayPace::IsDue(Time due)
{
    const std::int32_t times = Times(m_main);
    const Moment now = m_main.services.wires.Now();
    const auto elapsed = std::min<std::chrono::nanoseconds>(now - m_looked, kMostCaughtUp);
    m_looked = now;
    if (IsJumping() || (times == 0 && !m_main.replay.bPaused)) {
        m_position = due;
        return true;
    }
    if (m_main.replay.bPaused)
        return false;
    m_position = std::min<Time>(m_position + std::chrono::duration_cast<Time>(elapsed) * times,
                                due + Time(kMostCaughtUp) * times);
    return m_position >= due;
}

void ReplayPace::Await(std::string_view line)
{
    Note(TimeOfLine(line));
    const LinkState& links = m_main.links;
    while (!IsDue(m_due) && links.FileLoading && links.aprsfl) {
        milliseconds wait = kLongestWait;
        if (!m_main.replay.bPaused)
            wait = std::clamp(std::chrono::ceil<milliseconds>((m_due - m_position) / Times(m_main)), 1ms, wait);
        m_main.services.yield.Wait(wait);
    }
}

} // namespace ruvenmark
