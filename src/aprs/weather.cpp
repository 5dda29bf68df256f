#include "aprs/weather.h"

#include "aprs/text.h"
#include "aprs/time_stamp.h"
#include "aprs/weather_fields.h"
#include "aprs/weather_wind.h"

namespace ruvenmark::aprs {

namespace {

constexpr double kMinPressure = 10; // Millibar, 31 km up; less is a station without a barometer.

// Two digits have no room for 100, which is sent as 00. Stations without a barometer send it as zero.
void CorrectValues(Weather& weather)
{
    if (weather.pressure < kMinPressure)
        weather.pressure.reset();
    if (weather.humidity == 0)
        weather.humidity = 100;
    else if (weather.humidity > 100)
        weather.humidity.reset();
}

} // namespace

bool ParseWeather(std::string_view& text, Weather& weather)
{
    bool bWind = TakeWind(text, weather);
    if (!bWind && !StartsWithFields(text)) {
        bWind = TakeBrokenWind(text, weather);
        if (!bWind || !(text.empty() || StartsWithFields(text)))
            return false;
    }
    const bool bFields = TakeFields(text, weather);
    CorrectValues(weather);
    return bFields || (bWind && (weather.windDirection || weather.windSpeed));
}

Refusal ParsePositionlessWeather(std::string_view body, WeatherReport& report)
{
    if (body.size() <= kMonthTimeSize || !AllDigits(body.substr(0, kMonthTimeSize)) || body[kMonthTimeSize] != 'c')
        return Refusal::BadWeather;
    ParseMonthTime(body.substr(0, kMonthTimeSize), report.time);
    std::string_view text = body.substr(kMonthTimeSize);
    if (!ParseWeather(text, report.weather))
        return Refusal::BadWeather;
    report.comment = Trim(text);
    return Refusal::None;
}

} // namespace ruvenmark::aprs
