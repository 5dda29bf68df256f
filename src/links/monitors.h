#pragma once

#include <string_view>

namespace ruvenmark {

struct MainWindow;

void AddTNCData(MainWindow& main, std::string_view sTNCData);
void AddTCPData(MainWindow& main, std::string_view sTCPData); // Kept only where the settings say so.

// A line as received, of each link.
void aprs_ReportRawData(MainWindow& main, std::string_view bstrRawData);
void aprstcp_ReportRawData(MainWindow& main, std::string_view bstrRawData);

// Show a monitor, or hide it.
void mnuViewTncData_Click(MainWindow& main);
void mnuViewTcpData_Click(MainWindow& main);

// At the end of a run, while the settings are there: each log replaces that of the run before. False where one could
// not be saved, which is told: in a box where somebody may be asked.
bool SaveMonitorLogs(MainWindow& main, bool bMayAsk);

} // namespace ruvenmark
