#pragma once

namespace ruvenmark {

struct MainWindow;

// Connects the weather station by the dialog, or disconnects it.
void mnuConnectWx_Click(MainWindow& main);
// By the fields of frmWx, where they are not cancelled. Raises Failure.
void ConnectWx(MainWindow& main);

} // namespace ruvenmark
