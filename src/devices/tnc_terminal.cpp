#include "devices/tnc_terminal.h"

#include "devices/tnc_words.h"
#include "platform/failure.h"

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr char kCtrlC = 0x03, kXon = 0x11, kXoff = 0x13;
constexpr std::string_view kPrompt = "cmd:";
constexpr std::size_t kMaxLine = 1024;
constexpr std::size_t kMaxWaiting = 256; // Commands and texts.
constexpr std::size_t kShortestSentence = 6;

constexpr int kCtrlCTries = 3;
constexpr auto kCtrlCAgain = 2s;
constexpr auto kNoMorePrompts = 1s; // A TNC that wakes answers all it was typed at once, or only the last of it.
constexpr auto kPromptSilence = 5s; // The TNC may list pages before its prompt, at 1200 baud: silence counts,
constexpr auto kPromptLimit = 60s;  // though what it hears meanwhile breaks it too.
constexpr auto kConverseSettles = 500ms;
constexpr auto kHeldLimit = 10s; // A packet that happens to hold XOFF must not stop the link for good.
constexpr auto kInfoLimit = 2s;  // From a header to its information.
// No digipeater can have repeated a text by then, which takes at least as long on the air as to the slowest TNC: where
// the TNC echoes nothing, what it shows later was heard.
constexpr auto kEchoLimit = 500ms;
constexpr auto kSlowestByte = 9ms; // At 1200 baud.

bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

} // namespace

void TncTerminal::EnterCommandMode()
{
    if (m_queue.size() >= kMaxWaiting)
        throw Failure("the TNC does not take what is sent");
    m_queue.push_back({Typing::CtrlC, std::string(1, kCtrlC)});
    m_bInRun = true;
    m_bInConverse = false;
}

void TncTerminal::SendCommand(std::string_view line)
{
    if (!m_bInRun)
        throw Failure("the TNC is not in command mode");
    if (m_queue.size() >= kMaxWaiting)
        throw Failure("the TNC does not take what is sent");
    std::string text = Typeable(line);
    if (text.empty())
        return;
    const bool bEnters = !m_bInConverse && EntersConverse(text);
    const Typing typing = m_bInConverse ? Typing::Text : bEnters ? Typing::Converse : Typing::Command;
    m_queue.push_back({typing, std::move(text)});
    m_bInConverse = m_bInConverse || bEnters;
}

void TncTerminal::Take(std::string_view bytes, Moment now)
{
    m_lastHeard = now;
    for (const char c : bytes) {
        if (c == kXoff) {
            m_heldSince = m_bHeld ? m_heldSince : now;
            m_bHeld = true;
        } else if (c == kXon) {
            m_bHeld = false;
        } else if (c != '\0') { // Padding for slow printers.
            m_in += c;
        }
    }
}

std::optional<TncLine> TncTerminal::Next()
{
    while (TakePrompt() || std::any_of(m_in.begin(), m_in.end(), IsLineEnd)) {
        const auto line = TakeLine();
        if (!line)
            continue;
        if (auto said = Read(*line))
            return said;
    }
    if (m_in.size() > kMaxLine) {
        m_in.clear();
        m_lastEnd = '\0';
        m_bTooLong = true;
    }
    return std::nullopt;
}

// The prompt has no line end as a rule, and what is heard may stand right behind it.
bool TncTerminal::TakePrompt()
{
    if (m_bTooLong || m_heard.IsWaiting() || !m_in.starts_with(kPrompt))
        return false;
    m_in.erase(0, kPrompt.size());
    m_owed = std::exchange(m_bAnswered, false) ? 0 : std::max(0, m_owed - 1);
    m_bPrompt = true;
    m_lastPrompt = m_lastHeard;
    m_bMute = false;
    m_lastEnd = '\0';
    return true;
}

// Cuts the next line off; nothing where it is too long, or only the second half of a CR LF, or has no end yet.
std::optional<std::string> TncTerminal::TakeLine()
{
    const auto end = std::find_if(m_in.begin(), m_in.end(), IsLineEnd);
    if (end == m_in.end())
        return std::nullopt;
    std::string line(m_in.begin(), end);
    const bool bSecondHalf = line.empty() && *end == '\n' && m_lastEnd == '\r';
    m_lastEnd = bSecondHalf ? '\0' : *end;
    m_in.erase(m_in.begin(), end + 1);
    const bool bTooLong = std::exchange(m_bTooLong, false) || line.size() > kMaxLine;
    return bTooLong || bSecondHalf ? std::nullopt : std::optional(std::move(line));
}

std::optional<TncLine> TncTerminal::Read(const std::string& line)
{
    const bool bInfo = m_heard.IsWaiting();
    if (bInfo ? TakeEchoForInfo(line) : TakeEcho(line))
        return std::nullopt;
    if (auto packet = m_heard.Take(line))
        return TncLine{TncLine::Kind::Packet, std::move(*packet)};
    if (bInfo || m_heard.IsWaiting())
        return std::nullopt;
    if (line.size() > kShortestSentence && line.front() == '$')
        return TncLine{TncLine::Kind::Sentence, line};
    if ((m_stage == Stage::Command || m_stage == Stage::Converse) && IsFault(line)) {
        m_bRefused = m_bAnswered = true;
        return TncLine{TncLine::Kind::Fault, line};
    }
    m_bAnswered = m_bAnswered || (m_stage == Stage::Command && TellsWhatWas(line));
    return std::nullopt;
}

// Long lines come back in pieces as wide as the TNC's screen.
bool TncTerminal::TakeEcho(std::string_view line)
{
    if (line.empty() || !IsEchoOf(line, m_echo))
        return false;
    m_echo.erase(0, line.size());
    return true;
}

// An echo that comes between a header and its information.
bool TncTerminal::TakeEchoForInfo(std::string_view line)
{
    if (line.empty() || line != m_echo || m_lastHeard - m_written > kEchoLimit + kSlowestByte * m_echo.size())
        return false;
    m_echo.clear();
    return true;
}

std::string TncTerminal::ToWrite(Moment now)
{
    if (m_heard.IsWaiting() && now - m_lastHeard > kInfoLimit)
        m_heard.StopWaiting();
    if (m_bHeld && now - m_heldSince > kHeldLimit)
        m_bHeld = false;
    if (m_bHeld)
        m_stageBegan = m_lastHeard = m_lastPrompt = now; // What is not written yet cannot be answered.
    while (GoOn(now)) {
    }
    if (m_bHeld || m_typed.empty())
        return {};
    m_written = now;
    return std::exchange(m_typed, {});
}

// One step; false where something must be waited for.
bool TncTerminal::GoOn(Moment now)
{
    if (m_stage == Stage::Converse) {
        if (!m_bRefused && now - m_stageBegan < kConverseSettles)
            return false;
        m_stage = Stage::Free;
    } else if (m_stage != Stage::Free) {
        if (!IsPrompted(now) && !IsOverdue(now)) {
            TryCtrlCAgain(now);
            return false;
        }
        if (IsPrompted(now))
            m_stage = Stage::Free;
        else
            GiveUp();
    }
    if (m_queue.empty())
        return false;
    Item item = std::move(m_queue.front());
    m_queue.pop_front();
    Type(std::move(item), now);
    return true;
}

// Whether the prompt is there that what was typed last brought back. Those of the Ctrl-C before it may come late, one
// after the other: taken for it, the text would go out before the answer to MYCALL is known. Yet a TNC may never answer
// some of them, so that silence must do, too; it does at once where another Ctrl-C asks again. Behind a command it may
// be the TNC at work, but such a TNC tells what it set.
bool TncTerminal::IsPrompted(Moment now) const
{
    if (!m_bPrompt || m_owed == 0)
        return m_bPrompt;
    if (m_stage != Stage::CtrlC)
        return now - m_lastPrompt >= kPromptSilence;
    return now - m_lastPrompt >= kNoMorePrompts || (!m_queue.empty() && m_queue.front().typing == Typing::CtrlC);
}

void TncTerminal::TryCtrlCAgain(Moment now)
{
    if (m_stage != Stage::CtrlC || m_bPrompt || m_tries >= kCtrlCTries || now - m_stageBegan < m_tries * kCtrlCAgain)
        return;
    m_typed += kCtrlC;
    ++m_tries;
    ++m_owed;
}

bool TncTerminal::IsOverdue(Moment now) const
{
    if (m_stage == Stage::CtrlC)
        return !m_bPrompt && now - m_stageBegan >= kCtrlCTries * kCtrlCAgain;
    return now - std::max(m_lastHeard, m_stageBegan) >= kPromptSilence || now - m_stageBegan >= kPromptLimit;
}

void TncTerminal::Type(Item item, Moment now)
{
    if (item.typing == Typing::CtrlC)
        m_bRefused = false;
    if (m_bRefused && item.typing != Typing::Command) {
        if (item.typing == Typing::Text)
            m_fates.push_back({std::move(item.text), false});
        DropRun();
        return;
    }
    if (IsPrompted(now) || now - m_stageBegan >= kPromptLimit)
        m_owed = 0; // The rest will never come.
    m_owed += item.typing == Typing::CtrlC || item.typing == Typing::Command ? 1 : 0;
    m_typed += item.text;
    m_bPrompt = m_bAnswered = false;
    m_stageBegan = now;
    m_tries = 1;
    m_echo.clear();
    switch (item.typing) {
    case Typing::CtrlC:
        m_stage = Stage::CtrlC;
        return;
    case Typing::Command:
        m_stage = Stage::Command;
        break;
    case Typing::Converse:
        m_stage = Stage::Converse;
        break;
    case Typing::Text:
        m_fates.push_back({item.text, true});
        break;
    }
    m_typed += '\r';
    m_echo = std::move(item.text);
}

std::vector<TncTerminal::Fate> TncTerminal::TakeFates()
{
    return m_typed.empty() ? std::exchange(m_fates, {}) : std::vector<Fate>();
}

void TncTerminal::GiveUp()
{
    m_bMute = true;
    m_stage = Stage::Free;
    if (!std::exchange(m_typed, {}).empty()) // Held up until now: none of it has been written.
        for (Fate& fate : m_fates)
            fate.bTyped = false;
    DropRun();
}

void TncTerminal::GiveUpAll()
{
    for (GiveUp(); !m_queue.empty(); DropRun())
        m_queue.pop_front(); // Ctrl-C.
}

void TncTerminal::DropRun()
{
    for (; !m_queue.empty() && m_queue.front().typing != Typing::CtrlC; m_queue.pop_front())
        if (m_queue.front().typing == Typing::Text)
            m_fates.push_back({std::move(m_queue.front().text), false});
    if (m_queue.empty())
        m_bInRun = false;
}

} // namespace ruvenmark
