#pragma once

#include "contracts/byte_link.h"
#include "devices/heard_packet.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

// What a TNC said that concerns others.
struct TncLine {
    enum class Kind : std::uint8_t {
        Packet,   // Heard on the air, in one line.
        Sentence, // Of a GPS receiver behind the TNC.
        Fault,    // The TNC did not take a command.
    };
    Kind kind;
    std::string text;
};

// The dialogue with a TNC of the TNC-2 family, which has two modes: at its prompt it takes commands, in converse mode
// it sends every line on the air. Nothing is typed before the prompt shows that the TNC listens, so that no command
// goes on the air: a run of commands begins with Ctrl-C, and each waits for the prompt that the one before it brings
// back. A run whose prompt does not come is given up; one of which a command was refused puts nothing on the air, as it
// could go out under another call or another way than was asked for.
//
// Whoever owns it asks for Next and ToWrite after every call and four times a second. What queues something raises
// Failure where too much waits already.
class TncTerminal {
public:
    // Begins a run. It is typed as far as the prompt allows, the rest later.
    void EnterCommandMode();
    // A command or, behind CONV, a text for the air.
    void SendCommand(std::string_view line);

    void Take(std::string_view bytes, Moment now);
    // The next of what the TNC said; nothing once all that was taken is read.
    std::optional<TncLine> Next();
    // Goes on as far as it can at this moment; what is to be written now.
    std::string ToWrite(Moment now);

    // The link is gone: nothing is typed any more.
    void GiveUpAll();

    bool IsIdle() const { return m_stage == Stage::Free && m_queue.empty() && m_typed.empty(); }
    // The last run was given up, and no prompt has been seen since.
    bool IsMute() const { return m_bMute; }

    // What became of the texts for the air since it was asked last. One that the TNC holds up counts once it is
    // written.
    struct Fate {
        std::string text;
        bool bTyped;
    };
    std::vector<Fate> TakeFates();

private:
    enum class Typing : std::uint8_t { CtrlC, Command, Converse, Text };
    struct Item {
        Typing typing;
        std::string text;
    };
    enum class Stage : std::uint8_t {
        Free,
        CtrlC,    // Waits for the prompt, of Ctrl-C or
        Command,  // of a command.
        Converse, // Waits whether CONV is refused.
    };

    bool GoOn(Moment now);
    bool IsPrompted(Moment now) const;
    void TryCtrlCAgain(Moment now);
    bool IsOverdue(Moment now) const;
    void Type(Item item, Moment now);
    void GiveUp();
    void DropRun();
    bool TakePrompt();
    std::optional<std::string> TakeLine();
    std::optional<TncLine> Read(const std::string& line);
    bool TakeEcho(std::string_view line);
    bool TakeEchoForInfo(std::string_view line);

    std::deque<Item> m_queue;
    Stage m_stage = Stage::Free;
    Moment m_stageBegan{}, m_lastHeard{}, m_lastPrompt{};
    int m_tries = 0;            // Ctrl-C typed in this stage.
    int m_owed = 0;             // Prompts that every Ctrl-C and command typed so far may bring still.
    bool m_bPrompt = false;     // One was seen since the last of them.
    bool m_bAnswered = false;   // The TNC has told what that command did: the next prompt is its own.
    bool m_bRefused = false;    // A command of this run was.
    bool m_bInConverse = false; // As far as queued: what comes next is text.
    bool m_bInRun = false;      // As far as queued, and not given up.
    bool m_bMute = false;

    std::string m_typed; // Not written yet.
    std::vector<Fate> m_fates;
    bool m_bHeld = false;
    Moment m_heldSince{};
    std::string m_echo; // What the TNC may still repeat of what was typed.
    Moment m_written{};

    std::string m_in; // Begins where a line does.
    char m_lastEnd = 0;
    bool m_bTooLong = false; // The line's beginning is thrown away already.
    HeardPackets m_heard;
};

} // namespace ruvenmark
