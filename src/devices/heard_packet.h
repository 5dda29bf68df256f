#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// Puts the lines in which a TNC shows what it hears together into packet lines, SOURCE>DEST,DIGIPEATERS:information.
// Units write the header in many ways: with the kind of frame ("<UI>", "<<UI>>", "<UI R Len=34>") and the time behind
// it, the port behind the destination, a star behind the source; the information on the same line or the next, with
// blank lines between.
class HeardPackets {
public:
    // A line without its end, blank ones too. The packet line that it completes, if any.
    std::optional<std::string> Take(std::string_view line);
    // The header of a packet came and its information did not yet: the next line is no word of the TNC's own.
    bool IsWaiting() const { return !m_header.empty(); }
    void StopWaiting() { m_header.clear(); }

private:
    std::string m_header;       // Up to the colon, of the packet whose information is waited for.
    bool m_bMayBeEmpty = false; // It may as well have had none: a header in its place is a packet of its own.
};

} // namespace ruvenmark
