#include "devices/server_source.h"

#include "devices/event_text.h"
#include "devices/live_lines.h"
#include "devices/log_line.h"

namespace ruvenmark {

namespace {

constexpr std::chrono::seconds kConnectLimit{15};

} // namespace

void ServerSource::ConnectServer(std::string_view host, std::int32_t port, std::string_view token)
{
    CheckToken(token);
    if (m_link)
        throw Failure("the server is connected");
    m_link = m_links.ConnectSocket(host, port, kConnectLimit, *this);
    m_session.emplace(m_links.Now());
}

void ServerSource::CloseServer()
{
    CheckOpen();
    m_link.reset();
}

void ServerSource::SendServerLine(std::string_view line)
{
    CheckOpen();
    m_mask.NoteSent(line);
    m_link->Write(ServerBytes(line));
    if (m_listener && m_listener->onSent && !line.starts_with(kLoginWord))
        m_listener->onSent({SentReport::Road::Server, true, line});
}

std::chrono::milliseconds ServerSource::SilentFor() const
{
    if (!m_link)
        return {};
    return std::chrono::duration_cast<std::chrono::milliseconds>(m_links.Now() - m_session->LastHeard());
}

std::int32_t ServerSource::GetUtcOffset()
{
    CheckOpen();
    return UtcOffsetNow();
}

void ServerSource::CheckOpen() const
{
    if (!m_link)
        throw Failure("the server is not connected");
}

void ServerSource::OnBytes(std::string_view bytes, Moment now)
{
    const OwnEvents::Raising raising(m_events);
    const bool& bDropped = raising.IsDropped();
    m_session->Take(bytes, now);
    while (!bDropped && m_link) {
        auto line = m_session->Next();
        if (!line)
            break;
        while (const auto ahead = m_session->Ahead())
            m_sink.ExpectReport(LikelyCall(*ahead));
        m_mask.Hide(line->text);
        Raise(*line, bDropped);
    }
}

void ServerSource::Raise(const ServerLine& line, const bool& bDropped)
{
    if (line.kind == ServerLine::Kind::Packet)
        RaiseLiveLine(line.text, m_counts, m_sink, bDropped);
    else
        m_sink.ReportRawData(EventText(line.text, IsClean(line.text)));
}

void ServerSource::OnLost(Moment now)
{
    m_session->Lose();
    OnTick(now);
}

void ServerSource::OnTick(Moment now)
{
    if (!m_session->IsLossDue(now))
        return;
    m_link.reset();
    const OwnEvents::Raising raising(m_events);
    m_sink.ServerConnectionError();
}

} // namespace ruvenmark
