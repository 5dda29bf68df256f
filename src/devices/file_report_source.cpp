#include "devices/file_report_source.h"

#include "aprs/decode.h"
#include "devices/log_line.h"
#include "devices/packet_events.h"

namespace ruvenmark {

void FileReportSource::ParseLine(std::string_view line)
{
    const LogLine log(line);
    const aprs::Packet packet = aprs::Decode(log.Packet());
    m_counts.Add(packet.refusal);
    const OwnEvents::Raising raising(m_events);
    RaisePacketEvents(packet, RawData::No, m_sink, raising.IsDropped());
}

void FileReportSource::ExpectLine(std::string_view line)
{
    m_sink.ExpectReport(LikelyCall(line));
}

} // namespace ruvenmark
