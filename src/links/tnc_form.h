#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// commDialog: how the air is reached. The first fields outlive the window; other subsystems read them at any time.
struct TncForm {
    bool bConnectSocket = false; // The AGW Packet Engine; else a serial TNC.
    std::string sSocketAddress;
    std::int16_t iSocketPort = 0;
    std::string sSerialPort;
    std::int32_t lSerialBaud = 0; // Of the dialog; 0 when it was cancelled.
    bool bAddRFSymbol = true;     // A marker for each report.
    bool bTncGps = false;         // A GPS receiver hangs on the TNC.
    std::int32_t lLastBaudRate = 0;
    std::int16_t iBaudListIndex = 0;
    std::int16_t iSentenceIndex = 0;
    std::string sGpsSentence; // Not stored, on purpose.
    std::int16_t iUpdateRateIndex = 0;
    bool bAutoConnect = false;
    bool bAutoSerialPort = true; // What the start connects: the TNC, else the AGW Packet Engine.

    // What the dialog shows while it is open.
    std::int32_t cboConnect = 0; // Position in the list, as with the next lists.
    std::string txtSocketAddress, txtSocketPort;
    std::string cboSerialPort, cboSerialBaud;
    std::int32_t cboSentence = 0, cboUpdateRate = 0;
    bool chkAdd = true;
    bool chkAuto = false;
    bool chkTncGps = false;
};

} // namespace ruvenmark
