#pragma once

#include "contracts/report_source.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace ruvenmark {

// What a GPS receiver tells the system, on the logic thread. A fix has the form of one that comes through a TNC.
class IGpsSink {
public:
    virtual ~IGpsSink() = default;

    // One a report of the receiver while it knows where it is; one without a place when it no longer does.
    virtual void PositionFix(const GpsReport& fix) = 0;
    virtual void ConnectionError() = 0; // The port failed after it was opened. Once.
};

// A GPS receiver on a serial port. Made anew for every connection. Once it is dropped no event comes any more, also
// when it is dropped inside its own event. Methods raise Failure.
class IGpsServer {
public:
    virtual ~IGpsServer() = default;

    virtual void OpenGpsPort(std::string_view port, std::int32_t baud, std::string_view token) = 0; // kAccessToken.
    virtual void CloseGpsPort() = 0;
};

class IGpsServers {
public:
    virtual ~IGpsServers() = default;

    virtual std::unique_ptr<IGpsServer> CreateGps(IGpsSink& sink) = 0; // The sink outlives it.
};

} // namespace ruvenmark
