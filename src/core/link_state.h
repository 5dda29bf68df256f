#pragma once

#include "contracts/gps_server.h"
#include "contracts/report_source.h"
#include "contracts/weather_server.h"
#include "core/channel.h"
#include "platform/event.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

namespace ruvenmark {

// What is connected. A source is made anew for each connection and dropped at its end; a null one is silent.
struct LinkState {
    // Sinks outlive their sources.
    std::array<std::unique_ptr<IReportSink>, 3> sinks; // By channel.
    std::unique_ptr<IGpsSink> gpsSink;
    std::unique_ptr<IWeatherSink> wxSink;

    std::unique_ptr<IReportSource> aprs; // The TNC or the AGW Packet Engine.
    std::unique_ptr<IReportSource> aprstcp;
    std::unique_ptr<IReportSource> aprsfl;
    std::unique_ptr<IGpsServer> gps;
    std::unique_ptr<IWeatherServer> wx;

    bool bSerialConnected = false; // The TNC; never together with the next one.
    bool bSocketConnected = false; // The AGW Packet Engine.
    bool bServerConnected = false;
    bool bLoginSent = false;        // On this connection.
    bool bPasswordFileTold = false; // The operator was warned of its rights.
    bool bGpsConnected = false;
    bool bWxConnected = false;
    Event<std::string_view> LineHeard; // Of a live link, as it came, ahead of all else that it leads to.
    bool FileLoading = false;
    std::uint64_t FileLines = 0, FileRefused = 0; // Of the load that runs, or ran last: parsed, and no packets.
    Event<> LoadEnded;                            // Of a file, at its end or before.
    std::int16_t ReconnectCount = 0;              // Connections lost since the operator or the start connected.

    IReportSink& SinkOf(Channel channel) { return *sinks[Index(channel)]; }
    bool IsOnAir() const { return bSerialConnected || bSocketConnected; }
    bool IsAnyOpen() const { return IsOnAir() || bServerConnected; }
};

} // namespace ruvenmark
