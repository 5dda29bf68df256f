#pragma once

#include "contracts/report_source.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace ruvenmark {

// What a weather station measured. Absent values leave the ones before as they are; tests are strict.
struct WeatherUpdate {
    std::int32_t windDir = kAbsentLong; // Degrees, 360 north.
    double windSpeed = kAbsent;         // Miles an hour, to a tenth.
    double gust = kAbsent;              // The same: the peak of the last five minutes.
    double temperature = kAbsent;       // Degrees Fahrenheit, to a tenth.
    double rain1 = kAbsent;             // Hundredths of an inch, whole: in the last hour,
    double rain24 = kAbsent;            // in the last 24 hours,
    double rain12 = kAbsent;            // and since midnight.
    double humidity = kAbsent;          // Percent, whole.
    double pressure = kAbsent;          // Tenths of a millibar, whole.
};

class IWeatherSink {
public:
    virtual ~IWeatherSink() = default;

    virtual void UpdateWeather(const WeatherUpdate& update) = 0;
    virtual void ConnectionError() = 0; // The port failed after it was opened. Once.
};

// A weather station on a serial port. Made anew for every connection. Once it is dropped no event comes any more, also
// when it is dropped inside its own event. Methods raise Failure.
class IWeatherServer {
public:
    virtual ~IWeatherServer() = default;

    virtual void OpenWxPort(std::string_view port, std::int32_t baud, std::string_view token) = 0; // kAccessToken.
    virtual void CloseWxPort() = 0;
};

class IWeatherServers {
public:
    virtual ~IWeatherServers() = default;

    virtual std::unique_ptr<IWeatherServer> CreateWeather(IWeatherSink& sink) = 0; // The sink outlives it.
};

} // namespace ruvenmark
