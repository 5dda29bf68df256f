// A weather station that says anything, at the rate of either make: every figure is one that a report has room for.

#include "devices/weather_server.h"
#include "link_play.h"

using namespace ruvenmark;

namespace {

bool IsWhole(double value)
{
    return value == kAbsent || (value >= 0 && value == std::floor(value));
}

class WeatherSink final : public IWeatherSink {
public:
    explicit WeatherSink(std::unique_ptr<WeatherServer>& server, unsigned dropIn) : m_server(server), m_dropIn(dropIn)
    {
    }

    void UpdateWeather(const WeatherUpdate& update) override
    {
        fuzz::Require(update.windDir == kAbsentLong || (update.windDir >= 1 && update.windDir <= 360));
        fuzz::Require(update.windSpeed == kAbsent || (update.windSpeed >= 0 && update.windSpeed < 1000));
        fuzz::Require(update.gust == kAbsent || (update.gust >= 0 && update.gust < 1000));
        fuzz::CheckFinite(update.temperature);
        fuzz::Require(IsWhole(update.rain1) && IsWhole(update.rain24) && IsWhole(update.rain12));
        fuzz::Require(update.rain1 <= update.rain24);
        fuzz::Require(IsWhole(update.humidity) && update.humidity <= 100);
        fuzz::Require(IsWhole(update.pressure) && update.pressure <= 99999);
        Drop();
    }
    void ConnectionError() override
    {
        fuzz::Require(++m_errors == 1);
        Drop();
    }

private:
    void Drop()
    {
        fuzz::Require(m_server != nullptr);
        if (m_count++ == m_dropIn)
            m_server.reset();
    }

    std::unique_ptr<WeatherServer>& m_server;
    unsigned m_dropIn, m_count = 0;
    int m_errors = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    FakeByteLinks links;
    std::unique_ptr<WeatherServer> server;
    WeatherSink sink(server, data[0] >> 1U);
    server = std::make_unique<WeatherServer>(links, sink);
    server->OpenWxPort("port", (data[0] & 1U) != 0 ? 19200 : 2400, kAccessToken);
    fuzz::Play({reinterpret_cast<const char*>(data) + 1, size - 1}, links, [](unsigned) {});
    return 0;
}
