#pragma once

#include "aprs/decode.h"

#include <array>
#include <string_view>

namespace ruvenmark {

// The source call of the packet in a line of a saved file, by a quick look that may be wrong.
std::string_view LikelyCall(std::string_view line);

// The packet in a line of a saved file. Programs put the time and the port of reception before it ("2023-12-24
// 12:07:19.102 N0CALL-1 R ", "2023-12-24 12:07:19 UTC: ", "[0.3] ") and write bytes that do not print as "<0x1c>": the
// one is left out, the other read back. Lines without either are passed on as they are.
class LogLine {
public:
    explicit LogLine(std::string_view line);
    LogLine(const LogLine&) = delete;
    LogLine& operator=(const LogLine&) = delete;

    // Good as long as the line and this.
    std::string_view Packet() const { return m_packet; }
    // What stands before it, of the line; empty as a rule.
    std::string_view Stamp() const { return m_stamp; }

private:
    std::array<char, aprs::kMaxLine> m_bytes; // Of a packet that had to be written anew; uninitialised on purpose.
    std::string_view m_packet, m_stamp;
};

} // namespace ruvenmark
