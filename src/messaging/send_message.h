#pragma once

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// Sends a message, bulletin or acknowledgement once and files it in the Sent list, an acknowledgement not. The number
// is empty unless one is used again. An acknowledgement goes out over every open link and fails without a word; what
// else fails is told in a box.
void SendAprsMessage(MainWindow& main, std::string_view from, std::string_view to, std::string_view via,
                     std::string_view text, std::string_view number);

// Commands.
void mnuSendMessage_Click(MainWindow& main);
void mnuMsgReply_Click(MainWindow& main);     // To the selected row of the Inbox.
void mnuMsgForward_Click(MainWindow& main);   // That row's text.
void mnuPop1SendMsg_Click(MainWindow& main);  // To the selected station.
void mnuMsgSendAgain_Click(MainWindow& main); // The selected row of the Sent list, over every open link.
// Opens frmMessage with this recipient and sends.
void SendMessageTo(MainWindow& main, std::string_view to);

} // namespace ruvenmark
