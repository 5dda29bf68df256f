#include "outgoing/send_to_links.h"

#include "core/link_state.h"

#include <string>

namespace ruvenmark {

namespace {

// Leaves the TNC in converse mode; the next run begins with the command mode again.
void SendToTnc(IReportSource& tnc, const OutgoingReport& report)
{
    tnc.EnterCommandMode();
    tnc.SendCommand("MYCALL " + std::string(report.source));
    std::string unproto = "UNPROTO " + std::string(report.dest);
    if (!report.via.empty())
        unproto += " VIA " + std::string(report.via);
    tnc.SendCommand(unproto);
    tnc.SendCommand("CONV");
    tnc.SendCommand(report.text);
}

// The digipeater path is no part of this line.
std::string ServerLine(const OutgoingReport& report)
{
    std::string line(report.source);
    line.append(">").append(report.dest).append(",TCPIP*:").append(report.text);
    return line;
}

} // namespace

Roads OpenRoads(const LinkState& links, bool bRf, bool bTcp)
{
    return {bRf && links.bSerialConnected, bRf && links.bSocketConnected, bTcp && links.bServerConnected};
}

void SendToLinks(LinkState& links, const OutgoingReport& report, Roads wanted, Roads& taken)
{
    if (wanted.bTnc && links.aprs) {
        SendToTnc(*links.aprs, report);
        taken.bTnc = true;
    }
    if (wanted.bAgw && links.aprs) {
        links.aprs->SendFrame(report.source, report.dest, report.via, report.text);
        taken.bAgw = true;
    }
    if (wanted.bServer && links.aprstcp) {
        links.aprstcp->SendServerLine(ServerLine(report));
        taken.bServer = true;
    }
}

} // namespace ruvenmark
