// ReportWeather: a weather station's values under "Weather". The map learns of them with the next position report.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "platform/numbers.h"
#include "tracking/filters.h"

#include <array>
#include <string>

namespace ruvenmark {

namespace {

struct WeatherValue {
    Field field; // Its name is the node's word.
    std::string_view label, unit, image;
    std::string text; // Empty when the value is not given.
};

std::string Given(double value)
{
    return value > kAbsent ? ShortText(value) : std::string();
}

std::array<WeatherValue, 6> WeatherValues(const WeatherReport& report)
{
    const std::string direction =
        report.windDir > kAbsentLong ? ShortText(std::int64_t{report.windDir}) : std::string();
    return {{{Field::WindDir, "Wind Direction: ", "°", "WindDir", direction},
             {Field::WindSpeed, "Gust: ", " mph", "Speed", Given(report.windSpeed)},
             {Field::Temperature, "Temperature: ", "°F", "Temperature", Given(report.temperature)},
             {Field::Rain, "Rain (last 24hr): ", " inches", "Rain", Given(report.rain)},
             {Field::Humidity, "Humidity: ", "%", "Water", Given(report.humidity)},
             {Field::Pressure, "Pressure: ", " mBar", "Pressure", Given(report.pressure)}}};
}

void FileWeather(MainWindow& main, Channel channel, const WeatherReport& report)
{
    const std::string received(main.services.clock.LocalNowText());
    const auto values = WeatherValues(report);
    FactWriter writer(main.tvStationList, channel, kWeather);
    writer.Station(report.call, "Weather");
    for (const auto& value : values)
        if (!value.text.empty())
            writer.Fact(FieldName(value.field), value.label, value.text, value.unit, value.image);
    writer.Fact("Path", "Path: ", report.path, "", "Path");
    writer.Fact("Received", "Received: ", received, "", "Received");
    writer.Counts();

    Record& record = EnsureRecord(main.Of(channel), report.call);
    for (const auto& value : values)
        if (!value.text.empty())
            record.Set(value.field, value.text);
    if (!report.path.empty())
        record.Set(Field::WeatherPath, report.path);
    if (!received.empty())
        record.Set(Field::WeatherReceived, received);
}

} // namespace

void aprs_ReportWeather(MainWindow& main, Channel channel, const WeatherReport& report)
{
    if (IsFiltered(main, channel, report.call, report.dest, report.lat, report.lon))
        return;
    Attempt(main.abandoned, "ReportWeather", [&] { FileWeather(main, channel, report); });
}

} // namespace ruvenmark
