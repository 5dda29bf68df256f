#include "devices/file_report_source.h"

#include "aprs/decode.h"
#include "devices/packet_events.h"

namespace ruvenmark {

void FileReportSource::ParseLine(std::string_view line)
{
    const aprs::Packet packet = aprs::Decode(line);
    m_counts.Add(packet.refusal);
    const OwnEvents::Raising raising(m_events);
    RaisePacketEvents(packet, RawData::No, m_sink, raising.IsDropped());
}

} // namespace ruvenmark
