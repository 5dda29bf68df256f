#pragma once

namespace ruvenmark {

struct MainWindow;

// Connects by the dialog, or ends the connection.
void mnuConnectServer_Click(MainWindow& main);

// To the primary server, as the operator or the start wants it. Blocks until it stands or failed, which is told.
void ConnectServerLink(MainWindow& main);
// After a loss: to the primary server so many times, then to the backup server. Losses are counted until
// ConnectServerLink, those behind a reconnect that went well too: a server that keeps failing is left for the backup.
void ReconnectServerLink(MainWindow& main);
void aprstcp_ServerConnectionError(MainWindow& main);

// Closes what is open, without a word.
void EndServerLink(MainWindow& main);

} // namespace ruvenmark
