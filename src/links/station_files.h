#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

struct ImportForm;
struct MainWindow;

// frmImport: what the dialog shows when it opens, and its rules.
void frmImport_Load(ImportForm& form);
// The message for a text in txtDelay that cannot stay when the field is left; empty when it can.
std::string frmImport_txtDelay_LostFocus(const ImportForm& form);
void frmImport_Accept(ImportForm& form);
void frmImport_Cancel(ImportForm& form);

void LoadImportSettings(MainWindow& main);
void SaveImportSettings(MainWindow& main);

// Replays a saved packet file on FL, with progress, letting events in once a line. Ends where FileLoading turns false.
void LoadStationFile(MainWindow& main, std::string_view path);

// Loads a chosen file, or ends the load that runs.
void mnuImportStations_Click(MainWindow& main);
void mnuLoadStations_Click(MainWindow& main);

} // namespace ruvenmark
