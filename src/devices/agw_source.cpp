#include "devices/agw_source.h"

#include "devices/ax25.h"
#include "devices/live_lines.h"

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr char kPorts = 'G', kVersion = 'R';
constexpr char kRawMonitoring = 'k'; // Turns it on and off by turns, at first on.
constexpr char kRawFrame = 'K';      // Its data: a byte 0 and the frame, both ways.

constexpr auto kAnswerLimit = 15s;
constexpr auto kQuiet = 60s; // Engines speak only when somebody does on the air: asked now and then.

std::string PacketLine(std::string_view source, std::string_view dest, std::string_view via, std::string_view info)
{
    std::string line(source);
    line.append(">").append(dest).append(via.empty() ? "" : ",").append(via).append(":").append(info);
    return line;
}

} // namespace

void AgwSource::ConnectSocket(std::string_view host, std::int32_t port, std::string_view token)
{
    CheckToken(token);
    if (m_link)
        throw Failure("the packet engine is connected");
    m_bAsked = true;
    m_asked = m_links.Now();
    m_link = m_links.StartSocket(host, port, *this);
}

void AgwSource::CloseSocket()
{
    if (!m_link)
        throw Failure("the packet engine is not connected");
    m_link.reset();
    m_bOpen = false;
}

void AgwSource::SendFrame(std::string_view source, std::string_view dest, std::string_view via, std::string_view info)
{
    CheckOpen();
    if (m_ports == 0)
        throw Failure("the packet engine has no radio port");
    AgwFrame frame;
    frame.kind = kRawFrame;
    frame.from = source;
    frame.to = dest;
    frame.data = std::string(1, '\0') + MakeUiFrame(source, dest, via, info);
    m_link->Write(AgwBytes(frame));
    if (m_listener && m_listener->onSent)
        m_listener->onSent({SentReport::Road::Agw, true, PacketLine(source, dest, via, info)});
}

std::int32_t AgwSource::GetUtcOffset()
{
    CheckOpen();
    return UtcOffsetNow();
}

void AgwSource::CheckOpen() const
{
    if (!m_bOpen)
        throw Failure("the packet engine is not connected");
}

void AgwSource::OnOpened(Moment now)
{
    m_bOpen = true;
    m_lastHeard = now;
    Ask(kPorts, now);
    Ask(kRawMonitoring, now);
    const OwnEvents::Raising raising(m_events);
    m_sink.SocketConnected();
}

void AgwSource::OnBytes(std::string_view bytes, Moment now)
{
    const OwnEvents::Raising raising(m_events);
    const bool& bDropped = raising.IsDropped();
    m_lastHeard = now;
    m_bAsked = false;
    m_reader.Take(bytes);
    while (!bDropped && m_link) {
        const auto frame = m_reader.Next();
        if (!frame)
            break;
        Take(*frame, bDropped);
    }
    if (!bDropped && m_link && m_reader.IsBroken())
        Fail();
}

void AgwSource::Take(const AgwFrame& frame, const bool& bDropped)
{
    if (frame.kind == kPorts) {
        m_ports = AgwPortCount(frame.data);
        if (m_listener && m_listener->onAgwPorts)
            m_listener->onAgwPorts();
    } else if (frame.kind == kRawFrame && !frame.data.empty()) {
        if (const auto line = ReadUiFrame(std::string_view(frame.data).substr(1)))
            RaiseLiveLine(*line, m_counts, m_sink, bDropped);
    }
}

void AgwSource::OnLost(Moment /*now*/)
{
    Fail();
}

void AgwSource::OnTick(Moment now)
{
    if (m_bAsked && now - m_asked >= kAnswerLimit)
        Fail();
    else if (!m_bAsked && now - m_lastHeard >= kQuiet)
        Ask(kVersion, now);
}

void AgwSource::Ask(char kind, Moment now)
{
    m_bAsked = true;
    m_asked = now;
    AgwFrame frame;
    frame.kind = kind;
    try {
        m_link->Write(AgwBytes(frame));
    } catch (const Failure&) {
        // From the event loop: a link that fails tells its loss itself.
    }
}

void AgwSource::Fail()
{
    const bool bWasOpen = m_bOpen;
    m_link.reset();
    m_bOpen = false;
    const OwnEvents::Raising raising(m_events);
    if (bWasOpen)
        m_sink.SocketConnectionClosed();
    else
        m_sink.SocketConnectionError();
}

} // namespace ruvenmark
