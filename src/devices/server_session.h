#pragma once

#include "contracts/byte_link.h"
#include "devices/line_splitter.h"

#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// A line of an internet server that concerns others.
struct ServerLine {
    enum class Kind : std::uint8_t {
        Packet,
        Notice, // Of the server itself: how it took the login, or what it did not understand.
    };
    Kind kind;
    std::string text;
};

// What an internet server says, and when it has said nothing for too long: it writes a comment about every 20 seconds,
// and a link that lost its way stays open all the same.
class ServerSession {
public:
    explicit ServerSession(Moment connected) : m_connected(connected), m_lastHeard(connected) {}

    void Take(std::string_view bytes, Moment now);
    // The next line; nothing once all that was taken is read. Comments that only show that the link stands are left
    // out.
    std::optional<ServerLine> Next();
    // Lines of any kind behind that one, each once, as far as they were taken; live until Next or Take.
    std::optional<std::string_view> Ahead() { return m_lines.Ahead(); }

    Moment LastHeard() const { return m_lastHeard; }

    void Lose() { m_bLost = true; }
    // The other end is gone or silent, and the loss may be told: not sooner than 5 seconds after the connect, so that a
    // server that takes calls and drops them is not called without a pause.
    bool IsLossDue(Moment now) const;

private:
    Moment m_connected, m_lastHeard;
    bool m_bLost = false;
    LineSplitter m_lines{kMaxLine};

    static constexpr std::size_t kMaxLine = 1024;
};

// A line as it is sent: no byte in it can begin another. Raises Failure for one that no server takes.
std::string ServerBytes(std::string_view line);

} // namespace ruvenmark
