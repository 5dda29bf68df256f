#pragma once

#include "platform/dictionary.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ruvenmark {

// frmTcp: the APRS server and its backup. The first fields outlive the window; other subsystems read them at any time.
struct ServerForm {
    std::string sServerAddress;
    std::int16_t iServerPort = -1;
    std::string sServerFilter;
    bool bServerBeacon = true;
    bool bAddTCPSymbol = true; // A marker for each report.
    bool bReconnectServer = false;
    std::int16_t iReconnectAttempt = 0; // At the primary server, before the backup server's turn.
    std::string sBackupServer;
    std::int16_t iBackupPort = -1;
    std::string sBackupFilter;
    bool bBackupBeacon = false;
    bool bAutoTCP = false;
    bool bCancel = true;
    // What the dialog shows while it is open.
    std::string cboServer, cboPort, cboFilter;
    bool chkServerBeacon = false, chkAdd = false, chkAuto = false;
    bool chkReconnect = false; // While it is ticked the fields below can be used.
    std::string txtNumber, cboBackupServer, cboBackupPort, cboBackupFilter;
    bool chkBackupBeacon = false;
};

// What the lists of the server dialog offer: a text is key and value.
struct ServerLists {
    Dictionary<std::string> ServerList;
    Dictionary<std::string> PortList;
    Dictionary<std::string> ServerFilterList;

    // What the file of each was found to hold, in this order: one that would not change is not written.
    struct FileState {
        std::vector<std::string> entries;
        bool bUnreadable = false; // It is there and is not to be lost.
    };
    std::array<FileState, 3> files;
};

} // namespace ruvenmark
