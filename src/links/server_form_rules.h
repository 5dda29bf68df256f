#pragma once

#include <string>

namespace ruvenmark {

struct MainWindow;
struct ServerForm;

// frmTcp: what the dialog shows when it opens; cancelled until it is accepted.
void frmTcp_Load(ServerForm& form);
// Its tick has changed: ticked, it brings back what is stored of the backup server.
void frmTcp_chkReconnect_Click(ServerForm& form);

// The message for a text that cannot stay when the field is left; empty when it can.
std::string frmTcp_cboPort_LostFocus(const ServerForm& form);
std::string frmTcp_cboBackupPort_LostFocus(const ServerForm& form);
std::string frmTcp_txtNumber_LostFocus(const ServerForm& form);

// Whether the dialog closes; else the operator was told why it does not, and nothing is taken over.
bool frmTcp_Accept(MainWindow& main);

} // namespace ruvenmark
