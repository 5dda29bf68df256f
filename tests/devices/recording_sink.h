#pragma once

#include "intake/report_source.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace ruvenmark {

// Writes each event down as one line: its name without "Report", then its arguments, absent ones as "-".
class RecordingSink final : public IReportSink {
public:
    std::vector<std::string> events;
    std::function<void()> onEvent = [] {}; // Runs inside each event, after it is written down.

    void ReportPos(const PosReport& r) override
    {
        Write("Pos", r.call, r.dest, r.path, Rounded(r.lat), Rounded(r.lon), r.symbol, r.comment);
    }
    void ReportPacket(std::string_view packet) override { Write("Packet", packet); }
    void ReportTime(const TimeReport& r) override
    {
        Write("Time", r.call, r.dest, Rounded(r.lat), Rounded(r.lon), r.month, r.day, r.hour, r.minute, r.second,
              r.zone, r.kind);
    }
    void ReportDataExt(const DataExtReport& r) override
    {
        Write("DataExt", r.call, r.dest, Rounded(r.lat), Rounded(r.lon), r.power, r.height, r.gain, r.directivity);
    }
    void ReportPosExt(const PosExtReport& r) override
    {
        Write("PosExt", r.call, r.dest, Rounded(r.lat), Rounded(r.lon), r.altitude, r.speed, r.course);
    }
    void ReportStatus(const StatusReport& r) override
    {
        Write("Status", r.call, r.dest, r.path, Rounded(r.lat), Rounded(r.lon), r.status);
    }
    void ReportStatusTime(const StatusTimeReport& r) override
    {
        Write("StatusTime", r.call, r.dest, r.day, r.hour, r.minute, r.zone);
    }
    void ReportInfo(const InfoReport& r) override { Write("Info", r.call, r.dest, r.path, r.info); }
    void ReportWeather(const WeatherReport& r) override
    {
        Write("Weather", r.call, r.dest, r.path, Rounded(r.lat), Rounded(r.lon), r.windDir, r.windSpeed, r.temperature,
              r.rain, r.humidity, r.pressure);
    }
    void ReportCapabilities(const CapabilitiesReport& r) override
    {
        Write("Capabilities", r.call, r.dest, r.path, r.capabilities);
    }
    void ReportAprsMsg(const MessageReport& r) override
    {
        Write("AprsMsg", r.source, r.dest, r.path, r.to, r.text, r.messageNumber);
    }
    void SocketConnected() override { Write("SocketConnected"); }
    void SocketConnectionError() override { Write("SocketConnectionError"); }
    void SocketConnectionClosed() override { Write("SocketConnectionClosed"); }
    void ServerConnectionError() override { Write("ServerConnectionError"); }
    void ReportObjectItem(const ObjectItemReport& r) override
    {
        Write("ObjectItem", r.name, r.dest, Rounded(r.lat), Rounded(r.lon), r.sender, r.state);
    }
    void ReportGpsData(const GpsReport& r) override
    {
        Write("GpsData", Rounded(r.lat), Rounded(r.lon), r.altitude, r.course, r.speed, r.bValid ? 1 : 0);
    }
    void ReportRawData(std::string_view packet) override { Write("RawData", packet); }

private:
    // Degrees to two places are enough to tell that the right position came.
    static double Rounded(double degrees)
    {
        return static_cast<double>(static_cast<long>(degrees * 100 + (degrees < 0 ? -0.5 : 0.5))) / 100;
    }
    static void Append(std::ostringstream& out, std::string_view text) { out << '|' << text; }
    static void Append(std::ostringstream& out, double value)
    {
        if (value == kAbsent || value == kAbsentLong)
            out << "|-";
        else
            out << '|' << value;
    }

    template <class... Arguments>
    void Write(std::string_view name, const Arguments&... arguments)
    {
        std::ostringstream out;
        out << name;
        (Append(out, arguments), ...);
        events.push_back(out.str());
        onEvent();
    }
};

} // namespace ruvenmark
