#include "devices/gps_server.h"

#include "devices/live_lines.h"

namespace ruvenmark {

namespace {

constexpr std::chrono::seconds kSilence{10};

} // namespace

void GpsServer::OpenGpsPort(std::string_view port, std::int32_t baud, std::string_view token)
{
    CheckToken(token);
    if (m_link)
        throw Failure("the receiver's port is open");
    m_link = m_links.OpenSerial(port, baud, SerialFlow::None, *this);
    m_fixes.emplace(m_links.Now(), kSilence);
}

void GpsServer::CloseGpsPort()
{
    if (!m_link)
        throw Failure("the receiver's port is not open");
    m_link.reset();
}

void GpsServer::OnBytes(std::string_view bytes, Moment now)
{
    const OwnEvents::Raising raising(m_events);
    const bool& bDropped = raising.IsDropped();
    m_lines.Take(bytes);
    while (!bDropped && m_link) {
        const auto line = m_lines.Next();
        if (!line)
            break;
        m_fixes->Take(*line, now);
        RaiseFix(bDropped);
    }
}

void GpsServer::OnTick(Moment now)
{
    const OwnEvents::Raising raising(m_events);
    m_fixes->Tick(now);
    RaiseFix(raising.IsDropped());
}

void GpsServer::OnLost(Moment /*now*/)
{
    m_link.reset();
    const OwnEvents::Raising raising(m_events);
    m_sink.ConnectionError();
}

void GpsServer::RaiseFix(const bool& bDropped)
{
    if (const auto fix = bDropped ? std::nullopt : m_fixes->Next())
        m_sink.PositionFix(*fix);
}

} // namespace ruvenmark
