#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The frames between an AGW packet engine and its clients.
namespace ruvenmark {

struct AgwFrame {
    char kind = 0;         // What it asks or tells.
    std::uint8_t port = 0; // Radio port, 0 the first.
    std::string from, to;  // Calls, nine bytes at most; mostly empty.
    std::string data;
};

std::string AgwBytes(const AgwFrame& frame);

// Cuts what an engine says into frames.
class AgwReader {
public:
    void Take(std::string_view bytes) { m_bytes += bytes; }
    // The next whole frame; nothing once all is handed out, or once the stream is broken.
    std::optional<AgwFrame> Next();
    // A frame told a length that none has: where the next one begins cannot be known.
    bool IsBroken() const { return m_bBroken; }

private:
    std::string m_bytes;
    bool m_bBroken = false;
};

// How many radio ports the answer to 'G' lists: "2;Port1 first;Port2 second;". Nothing where it is no such list.
std::optional<int> AgwPortCount(std::string_view data);

} // namespace ruvenmark
