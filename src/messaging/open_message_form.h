#pragma once

#include <string>

namespace ruvenmark {

// frmOpenMessage: a received message as it is read.
struct OpenMessageForm {
    std::string caption; // "Message 12"
    std::string txtFrom, txtTo, txtDate, txtMessage;
    bool bReply = false; // Closed by "Reply".
};

} // namespace ruvenmark
