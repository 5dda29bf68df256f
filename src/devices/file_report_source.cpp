#include "devices/file_report_source.h"

#include "aprs/decode.h"
#include "devices/packet_events.h"
#include "platform/failure.h"

namespace ruvenmark {

namespace {

[[noreturn]] void FailOtherChannel()
{
    throw Failure("This report source reads saved lines only");
}

} // namespace

FileReportSource::FileReportSource(IReportSink& sink, LineCounts& counts) : m_sink(sink), m_counts(counts) {}

FileReportSource::~FileReportSource()
{
    for (Call* call = m_call; call != nullptr; call = call->outer)
        call->bDropped = true;
}

void FileReportSource::OpenPort(std::string_view /*port*/, std::int32_t /*baud*/, std::string_view /*token*/)
{
    FailOtherChannel();
}

void FileReportSource::ClosePort()
{
    FailOtherChannel();
}

void FileReportSource::EnterCommandMode()
{
    FailOtherChannel();
}

void FileReportSource::SendCommand(std::string_view /*line*/)
{
    FailOtherChannel();
}

std::int32_t FileReportSource::GetUtcOffset()
{
    FailOtherChannel();
}

void FileReportSource::ConnectSocket(std::string_view /*host*/, std::int32_t /*port*/, std::string_view /*token*/)
{
    FailOtherChannel();
}

void FileReportSource::CloseSocket()
{
    FailOtherChannel();
}

void FileReportSource::SendFrame(std::string_view /*source*/, std::string_view /*dest*/, std::string_view /*via*/,
                                 std::string_view /*info*/)
{
    FailOtherChannel();
}

void FileReportSource::ConnectServer(std::string_view /*host*/, std::int32_t /*port*/, std::string_view /*token*/)
{
    FailOtherChannel();
}

void FileReportSource::CloseServer()
{
    FailOtherChannel();
}

void FileReportSource::SendServerLine(std::string_view /*line*/)
{
    FailOtherChannel();
}

void FileReportSource::ParseLine(std::string_view line)
{
    const aprs::Packet packet = aprs::Decode(line);
    m_counts.Add(packet.refusal);
    // An event may destroy this source or raise: the call leaves the list either way, unless the list is gone.
    Call call{false, m_call};
    m_call = &call;
    struct Leave {
        FileReportSource& source;
        Call& call;
        ~Leave()
        {
            if (!call.bDropped)
                source.m_call = call.outer;
        }
    } const leave{*this, call};
    RaisePacketEvents(packet, RawData::No, m_sink, call.bDropped);
}

} // namespace ruvenmark
