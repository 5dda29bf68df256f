#pragma once

#include "contracts/report_source.h"

#include <nlohmann/json.hpp>

#include <functional>

namespace ruvenmark {

// Turns each event into an object: its name, then its arguments by name as they were passed, absent values included.
class EventJsonSink final : public IReportSink {
public:
    explicit EventJsonSink(std::function<void(const nlohmann::ordered_json&)> onEvent);

    void ReportPos(const PosReport& report) override;
    void ReportPacket(std::string_view packet) override;
    void ReportTime(const TimeReport& report) override;
    void ReportDataExt(const DataExtReport& report) override;
    void ReportPosExt(const PosExtReport& report) override;
    void ReportStatus(const StatusReport& report) override;
    void ReportStatusTime(const StatusTimeReport& report) override;
    void ReportInfo(const InfoReport& report) override;
    void ReportWeather(const WeatherReport& report) override;
    void ReportCapabilities(const CapabilitiesReport& report) override;
    void ReportAprsMsg(const MessageReport& report) override;
    void SocketConnected() override;
    void SocketConnectionError() override;
    void SocketConnectionClosed() override;
    void ServerConnectionError() override;
    void ReportObjectItem(const ObjectItemReport& report) override;
    void ReportGpsData(const GpsReport& report) override;
    void ReportRawData(std::string_view packet) override;

private:
    std::function<void(const nlohmann::ordered_json&)> m_onEvent;
};

} // namespace ruvenmark
