#pragma once

#include "outgoing/send_to_links.h"

#include <string>

namespace ruvenmark {

struct LinkState;
struct SettingsState;

// The tick boxes of a dialog that sends: over which links. Ticks are kept for the run.
struct RoadBoxes {
    bool chkRF = false, chkTCP = false;
    bool bRfEnabled = false, bTcpEnabled = false;
    bool CanSend() const { return (chkRF && bRfEnabled) || (chkTCP && bTcpEnabled); }
};
void Load(RoadBoxes& boxes, const LinkState& links);
// The roads ticked, as far as they are open now.
Roads Wanted(const RoadBoxes& boxes, const LinkState& links);

// The calls and the path of a dialog that sends, and what was kept of them when it sent last.
struct CallBoxes {
    std::string From, To, Via;
    std::string txtFrom, txtTo, txtVia;
};
void Load(CallBoxes& boxes, const SettingsState& settings);
void Keep(CallBoxes& boxes); // Upper-cased.

} // namespace ruvenmark
