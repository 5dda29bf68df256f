#pragma once

#include "aprs/decode.h"
#include "devices/line_counts.h"
#include "devices/packet_events.h"
#include "platform/failure.h"

#include <string_view>

// What the sources of live channels have in common.
namespace ruvenmark {

// Raises what a packet line says, the line as it was received first. See RaisePacketEvents for `bStopped`.
inline void RaiseLiveLine(std::string_view line, LineCounts& counts, IReportSink& sink, const bool& bStopped)
{
    const aprs::Packet packet = aprs::Decode(line);
    counts.Add(packet.refusal);
    RaisePacketEvents(packet, RawData::Yes, sink, bStopped);
}

inline void CheckToken(std::string_view token)
{
    if (token != kAccessToken)
        throw Failure("wrong access token");
}

// Minutes to add to local time to get UTC, at present.
std::int32_t UtcOffsetNow();

} // namespace ruvenmark
