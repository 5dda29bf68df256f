#pragma once

#include "contracts/byte_link.h"
#include "contracts/weather_server.h"
#include "devices/davis_feed.h"
#include "devices/line_splitter.h"
#include "devices/own_events.h"
#include "devices/weather_history.h"

namespace ruvenmark {

// A weather station, known by what it says: an Ultimeter talks on its own, a Davis console is woken at the one rate it
// speaks at.
class WeatherServer final : public IWeatherServer, private IByteSink {
public:
    // Both must outlive the server.
    WeatherServer(IByteLinks& links, IWeatherSink& sink) : m_links(links), m_sink(sink) {}

    void OpenWxPort(std::string_view port, std::int32_t baud, std::string_view token) override;
    void CloseWxPort() override;

private:
    void OnOpened(Moment /*now*/) override {}
    void OnBytes(std::string_view bytes, Moment now) override;
    void OnLost(Moment now) override;
    void OnTick(Moment now) override;

    std::optional<WeatherReading> Next();
    void WriteToDavis(Moment now);

    static constexpr std::size_t kMaxLine = 1024;

    IByteLinks& m_links;
    IWeatherSink& m_sink;
    LineSplitter m_lines{kMaxLine};
    std::optional<DavisFeed> m_davis; // While the station may be one.
    WeatherHistory m_history;
    OwnEvents m_events;
    std::unique_ptr<IByteLink> m_link; // Last, so that it falls silent first.
};

class WeatherServers final : public IWeatherServers {
public:
    explicit WeatherServers(IByteLinks& links) : m_links(links) {}

    std::unique_ptr<IWeatherServer> CreateWeather(IWeatherSink& sink) override
    {
        return std::make_unique<WeatherServer>(m_links, sink);
    }

private:
    IByteLinks& m_links;
};

} // namespace ruvenmark
