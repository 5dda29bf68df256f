#pragma once

namespace ruvenmark {

struct MainWindow;

// Disconnects what is on the air, else asks in commDialog and connects.
void ConnectTnc(MainWindow& main);
// By the fields of commDialog. A failure shows in the status panel.
void ConnectSerialTnc(MainWindow& main);
void ConnectAgw(MainWindow& main); // Connected when SocketConnected comes.

// The operator's files of TNC commands: after each connect, and before each disconnect to put the TNC back. A missing
// file is no failure. Raise Failure.
void SendTncSettings(MainWindow& main);
void SendOriginalSettings(MainWindow& main);

// The end of the program: the TNC is put back as it was; nothing is told and no flag changes.
void CloseTncLink(MainWindow& main);

// Events of the source. A serial port that is lost comes as closed, too.
void aprs_SocketConnected(MainWindow& main);
void aprs_SocketConnectionError(MainWindow& main);
void aprs_SocketConnectionClosed(MainWindow& main);

} // namespace ruvenmark
