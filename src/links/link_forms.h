#pragma once

#include "platform/dictionary.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ruvenmark {

// Fields of the link dialogs; they outlive the windows, and other subsystems read them at any time.

// commDialog
struct TncForm {
    bool bAddRFSymbol = true; // A marker for each report.
};

// frmTcp
struct ServerForm {
    std::string sPrimaryServer;
    std::int16_t iPrimaryPort = -1;
    std::string sPrimaryFilter;
    bool bServerBeacon = true;
    bool bAddTCPSymbol = true; // A marker for each report.
    bool bReconnectServer = false;
    std::int16_t iReconnectAttempt = 0;
    std::string sBackupServer;
    std::int16_t iBackupPort = -1;
    std::string sBackupFilter;
    bool bBackupBeacon = false;
    bool bAutoTCP = false;
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

// frmImport
inline constexpr std::int16_t kLoadCancelled = -1;
struct ImportForm {
    std::int16_t iFLDelay = 0; // Milliseconds after each line, or kLoadCancelled.
    bool bFLAdd = true;        // A marker for each report.
    bool bFLShow = true;       // New markers show their names.
    // What the dialog shows while it is open.
    std::string txtDelay;
    bool chkAdd = true;
    bool chkShow = true;
};

} // namespace ruvenmark
