#pragma once

#include <string>

namespace ruvenmark {

struct ImportForm;
struct MainWindow;

// frmImport: what the dialog shows when it opens; cancelled until it is accepted.
void frmImport_Load(ImportForm& form);
// The message for a text in txtDelay that cannot stay when the field is left; empty when it can.
std::string frmImport_txtDelay_LostFocus(const ImportForm& form);
void frmImport_Accept(ImportForm& form);

void LoadImportSettings(MainWindow& main);
void SaveImportSettings(MainWindow& main);

} // namespace ruvenmark
