#pragma once

namespace ruvenmark {

struct MainWindow;

// The fix and the way to the destination, once a report. Raises Failure for a destination that is no place.
void UpdateGpsData(MainWindow& main);
// Takes the values off where no fix is held any more.
void UpdateGpsDataExt(MainWindow& main);
void Timer1_Timer(MainWindow& main); // Every kGpsPanelPeriodMs.
inline constexpr int kGpsPanelPeriodMs = 8000;

void frmGpsPanel_Load(MainWindow& main);
void frmGpsPanel_Command1_Click(MainWindow& main); // Set: the next click on the map is the destination.
void frmGpsPanel_Command2_Click(MainWindow& main); // Clear.

// Shows the panel or hides it.
void mnuViewGPSPanel_Click(MainWindow& main);

} // namespace ruvenmark
