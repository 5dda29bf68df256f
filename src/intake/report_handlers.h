#pragma once

#include "contracts/report_source.h"
#include "core/channel.h"

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// What each report does to the tree, the records and the map. A Failure abandons the rest of the report, as each tells.
void aprs_ReportPos(MainWindow& main, Channel channel, const PosReport& report);
void aprs_ReportPosExt(MainWindow& main, Channel channel, const PosExtReport& report);
void aprs_ReportStatus(MainWindow& main, Channel channel, const StatusReport& report);
void aprs_ReportStatusTime(MainWindow& main, Channel channel, const StatusTimeReport& report);
void aprs_ReportTime(MainWindow& main, Channel channel, const TimeReport& report);
void aprs_ReportWeather(MainWindow& main, Channel channel, const WeatherReport& report);
void aprs_ReportCapabilities(MainWindow& main, Channel channel, const CapabilitiesReport& report);
void aprs_ReportInfo(MainWindow& main, Channel channel, const InfoReport& report);
void aprs_ReportDataExt(MainWindow& main, Channel channel, const DataExtReport& report);
void aprs_ReportObjectItem(MainWindow& main, Channel channel, const ObjectItemReport& report);
void aprs_ReportPacket(MainWindow& main, Channel channel, std::string_view packet);

} // namespace ruvenmark
