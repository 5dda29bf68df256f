#pragma once

namespace ruvenmark {

struct GpsReport;
struct MainWindow;

// Commands.
void mnuConnectGps_Click(MainWindow& main); // Connects by the dialog, or disconnects.
void mnuToolsGpsTracking_Click(MainWindow& main);

// By the fields of frmGps, where they are not cancelled. What fails stands in the status bar.
void ConnectGps(MainWindow& main);
// At the end of the program: closes the port, and nothing else.
void EndGps(MainWindow& main);

// The receiver gives no place: no movement is known any more.
void ForgetFix(MainWindow& main);

// A fix that comes through the TNC; nothing unless a receiver hangs on it. It moves the same marker as one of the
// receiver's own port, but tells nothing in the status bar, and without a place it leaves the marker as it is.
void aprs_ReportGpsData(MainWindow& main, const GpsReport& fix);

} // namespace ruvenmark
