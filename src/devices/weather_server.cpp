#include "devices/weather_server.h"

#include "devices/live_lines.h"
#include "devices/ultimeter_feed.h"

namespace ruvenmark {

namespace {

constexpr std::int32_t kDavisBaud = 19200;

} // namespace

void WeatherServer::OpenWxPort(std::string_view port, std::int32_t baud, std::string_view token)
{
    CheckToken(token);
    if (m_link)
        throw Failure("the weather station's port is open");
    m_link = m_links.OpenSerial(port, baud, SerialFlow::None, *this);
    if (baud == kDavisBaud)
        m_davis.emplace();
}

void WeatherServer::CloseWxPort()
{
    if (!m_link)
        throw Failure("the weather station's port is not open");
    m_link.reset();
}

void WeatherServer::OnBytes(std::string_view bytes, Moment now)
{
    m_lines.Take(bytes);
    if (m_davis)
        m_davis->Take(bytes, now);
    const OwnEvents::Raising raising(m_events);
    while (!raising.IsDropped() && m_link) {
        const auto reading = Next();
        if (!reading)
            break;
        m_sink.UpdateWeather(m_history.Take(*reading, now));
    }
    if (!raising.IsDropped())
        WriteToDavis(now);
}

std::optional<WeatherReading> WeatherServer::Next()
{
    while (const auto line = m_lines.Next()) {
        if (const auto reading = ReadUltimeter(*line)) {
            m_davis.reset();
            return reading;
        }
    }
    return m_davis ? m_davis->Next() : std::nullopt;
}

void WeatherServer::OnTick(Moment now)
{
    WriteToDavis(now);
}

void WeatherServer::WriteToDavis(Moment now)
{
    if (!m_link || !m_davis)
        return;
    try {
        if (const std::string question = m_davis->ToWrite(now); !question.empty())
            m_link->Write(question);
    } catch (const Failure&) {
        // From the event loop: a port that fails tells its loss itself.
    }
}

void WeatherServer::OnLost(Moment /*now*/)
{
    m_link.reset();
    const OwnEvents::Raising raising(m_events);
    m_sink.ConnectionError();
}

} // namespace ruvenmark
