#pragma once

#include "aprs/packet.h"
#include "contracts/report_source.h"

namespace ruvenmark {

// Whether each line is also raised as received: on live channels it is, of saved files not.
enum class RawData : bool { No, Yes };

// Raises what a packet says on the sink, in the order the contract's readers expect. `bStopped` is looked at before
// every event: a sink that drops its source sets it, and nothing more is raised or touched. `packet` and its line must
// outlive the call.
void RaisePacketEvents(const aprs::Packet& packet, RawData rawData, IReportSink& sink, const bool& bStopped);

} // namespace ruvenmark
