// ReportWeather: a weather station's values under "Weather". The map learns of them with the next position report.

#include "core/main_window.h"
#include "intake/fact_writer.h"
#include "intake/report_handlers.h"
#include "intake/station_store.h"
#include "tracking/filters.h"

#include <array>
#include <string>

namespace ruvenmark {

namespace {

std::array<FactValue, 6> WeatherValues(const WeatherReport& report)
{
    return {{{Field::WindDir, "Wind Direction: ", "°", "WindDir", GivenText(report.windDir)},
             {Field::WindSpeed, "Gust: ", " mph", "Speed", GivenText(report.windSpeed)},
             {Field::Temperature, "Temperature: ", "°F", "Temperature", GivenText(report.temperature)},
             {Field::Rain, "Rain (last 24hr): ", " inches", "Rain", GivenText(report.rain)},
             {Field::Humidity, "Humidity: ", "%", "Water", GivenText(report.humidity)},
             {Field::Pressure, "Pressure: ", " mBar", "Pressure", GivenText(report.pressure)}}};
}

void FileWeather(MainWindow& main, Channel channel, const WeatherReport& report)
{
    const std::string received(main.services.clock.LocalNowText());
    const auto values = WeatherValues(report);
    FactWriter writer(main.tvStationList, channel, kWeather);
    writer.Station(report.call, "Weather");
    writer.Given(values);
    writer.Fact("Path", "Path: ", report.path, "", "Path");
    writer.Fact("Received", "Received: ", received, "", "Received");
    writer.Counts();

    Record& record = EnsureRecord(main.Of(channel), report.call);
    SetGiven(record, values);
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
