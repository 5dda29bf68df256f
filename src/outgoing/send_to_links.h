#pragma once

#include <string_view>

namespace ruvenmark {

struct LinkState;

// One report as it goes on the air: calls and path as shown, and the information text.
struct OutgoingReport {
    std::string_view source, dest, via, text;
};

// Which roads somebody wants, or which a report took.
struct Roads {
    bool bTnc = false, bAgw = false, bServer = false;
    bool IsAny() const { return bTnc || bAgw || bServer; }
};

// The roads that are open, of those wanted.
Roads OpenRoads(const LinkState& links, bool bRf, bool bTcp);

// Sends over the TNC, the AGW Packet Engine and the server, in this order. A Failure skips what comes behind it;
// `taken` says what the report went over up to there.
void SendToLinks(LinkState& links, const OutgoingReport& report, Roads wanted, Roads& taken);

} // namespace ruvenmark
