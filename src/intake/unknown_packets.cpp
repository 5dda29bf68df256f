// ReportPacket: a line that could not be decoded, filed under "Unknown" where the operator wants that.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"

namespace ruvenmark {

void aprs_ReportPacket(MainWindow& main, Channel channel, std::string_view packet)
{
    if (!main.Of(channel).bShowUnknown || packet.empty()) // Nothing would be the key of the folder itself.
        return;
    Attempt(main.abandoned, "ReportPacket", [&] {
        FactWriter writer(main.tvStationList, channel, kUnknown);
        writer.Station(packet, "Question");
        writer.Counts();
    });
}

} // namespace ruvenmark
