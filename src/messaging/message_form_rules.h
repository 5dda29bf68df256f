#pragma once

#include <array>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;
struct MessageForm;

inline constexpr std::array<std::string_view, 3> kMessageTypes = {"Message", "Bulletin", "Announcement"};

void frmMessage_Load(MainWindow& main);
// Another type was chosen: the recipient that goes with it.
void frmMessage_cboMessageType_Click(MessageForm& form);
// The complaint that keeps the dialog open; empty when the message may go.
std::string frmMessage_Send(MessageForm& form);

} // namespace ruvenmark
