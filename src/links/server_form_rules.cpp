#include "links/server_form_rules.h"

#include "core/main_window.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <cstdint>
#include <string_view>

namespace ruvenmark {

namespace {

// A text that is no number is told of like a negative one: nothing typed is lost.
std::string Complaint(std::string_view text, std::string_view message)
{
    if (text.empty())
        return {};
    try {
        if (ToInt16(text) >= 0)
            return {};
    } catch (const Failure&) {
    }
    return std::string(message);
}

std::string NumberShown(std::int16_t number)
{
    return number < 0 ? std::string() : ShortText(std::int64_t{number});
}

std::int16_t TrimmedNumber(std::string_view text, std::int16_t ofNothing)
{
    const std::string_view trimmed = Trim(text);
    return trimmed.empty() ? ofNothing : ToInt16(trimmed);
}

void ShowBackup(ServerForm& form)
{
    form.txtNumber = NumberShown(form.iReconnectAttempt);
    form.cboBackupServer = Trim(form.sBackupServer);
    form.cboBackupPort = NumberShown(form.iBackupPort);
    form.cboBackupFilter = Trim(form.sBackupFilter);
    form.chkBackupBeacon = form.bBackupBeacon;
}

// Blanks alone are no text where the text is trimmed before it is read.
std::string AcceptComplaint(const ServerForm& form)
{
    if (form.cboServer.empty() || form.cboPort.empty())
        return "You must enter a server address and port number!";
    std::string complaint = frmTcp_cboPort_LostFocus(form);
    if (!form.chkReconnect)
        return complaint;
    if (complaint.empty() && !Trim(form.txtNumber).empty())
        complaint = frmTcp_txtNumber_LostFocus(form);
    if (complaint.empty() && !Trim(form.cboBackupPort).empty())
        complaint = frmTcp_cboBackupPort_LostFocus(form);
    return complaint;
}

// As typed: a text is found again as the operator knows it.
void Enter(ServerLists& lists, const std::string& server, const std::string& port, const std::string& filter)
{
    lists.ServerList.Set(server, server);
    lists.PortList.Set(port, port);
    lists.ServerFilterList.Set(filter, filter);
}

void TakeBackup(ServerForm& form)
{
    form.sBackupServer = Trim(form.cboBackupServer);
    form.iBackupPort = TrimmedNumber(form.cboBackupPort, -1);
    form.sBackupFilter = Trim(form.cboBackupFilter);
    form.bBackupBeacon = form.chkBackupBeacon;
    form.iReconnectAttempt = TrimmedNumber(form.txtNumber, 0);
}

} // namespace

void frmTcp_Load(ServerForm& form)
{
    form.cboServer = form.sServerAddress;
    form.cboPort = NumberShown(form.iServerPort);
    form.cboFilter = form.sServerFilter;
    form.chkServerBeacon = form.bServerBeacon;
    form.chkAdd = form.bAddTCPSymbol;
    form.chkAuto = form.bAutoTCP;
    form.chkReconnect = form.bReconnectServer;
    form.txtNumber = form.cboBackupServer = form.cboBackupPort = form.cboBackupFilter = {};
    form.chkBackupBeacon = false;
    frmTcp_chkReconnect_Click(form);
    form.bCancel = true;
}

void frmTcp_chkReconnect_Click(ServerForm& form)
{
    if (form.chkReconnect)
        ShowBackup(form);
}

std::string frmTcp_cboPort_LostFocus(const ServerForm& form)
{
    return Complaint(form.cboPort, "Please enter a positive interger port number!");
}

std::string frmTcp_cboBackupPort_LostFocus(const ServerForm& form)
{
    return Complaint(form.cboBackupPort, "Please enter a positive interger backup port number!");
}

std::string frmTcp_txtNumber_LostFocus(const ServerForm& form)
{
    return Complaint(form.txtNumber, "Please enter a positive interger for number of attempts!");
}

bool frmTcp_Accept(MainWindow& main)
{
    ServerForm& form = main.frmTcp;
    if (const std::string complaint = AcceptComplaint(form); !complaint.empty()) {
        main.services.prompts.Message(complaint);
        return false;
    }
    form.sServerAddress = form.cboServer;
    form.iServerPort = ToInt16(form.cboPort);
    form.sServerFilter = form.cboFilter;
    form.bServerBeacon = form.chkServerBeacon;
    if (form.chkReconnect) {
        TakeBackup(form);
        Enter(main.serverLists, form.cboBackupServer, form.cboBackupPort, form.cboBackupFilter);
    }
    form.bAddTCPSymbol = form.chkAdd;
    form.bReconnectServer = form.chkReconnect;
    form.bAutoTCP = form.chkAuto;
    Enter(main.serverLists, form.cboServer, form.cboPort, form.cboFilter);
    form.bCancel = false;
    return true;
}

} // namespace ruvenmark
