#pragma once

#include "messaging/message_form_rules.h"
#include "messaging/send_message.h"
#include "support/noted_source.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

using Texts = std::vector<std::string>;

// A row as "a|b|c|date|text|number", bold ones with "*" behind.
inline Texts RowsOf(const RowList& list)
{
    Texts rows;
    for (std::size_t i = 0; i < list.Count(); ++i) {
        std::string& row = rows.emplace_back();
        for (std::size_t column = 0; column < 6; ++column)
            row += (column == 0 ? "" : "|") + list.At(i).Text(column);
        row += list.At(i).IsBold() ? "*" : "";
    }
    return rows;
}

class MessageTest : public NotedLinks {
protected:
    MessageTest() { program.Set("MatchSSID=False All=0"); }

    // The operator fills the dialog, ticks both boxes and presses "Send"; what keeps it open is given back.
    std::string SendByDialog(std::string_view to, std::string_view text, std::int32_t type = 0)
    {
        std::string complaint;
        program.dialogs.onRun[Form::frmMessage] = [&](MainWindow& shown) {
            MessageForm& form = shown.frmMessage;
            form.roads.chkRF = form.roads.chkTCP = true;
            form.cboMessageType = type;
            frmMessage_cboMessageType_Click(form);
            if (!to.empty())
                form.txtTo = to;
            form.txtMessage = text;
            complaint = frmMessage_Send(form);
        };
        mnuSendMessage_Click(main);
        program.dialogs.onRun.clear();
        return complaint;
    }
    void Hear(Channel channel, std::string_view to, std::string_view text, std::string_view number = "",
              std::string_view source = "W1AW", std::string_view dest = "APRS")
    {
        program.Sink(channel).ReportAprsMsg({source, dest, "WIDE2-1", to, text, number});
    }
    std::string BoxText(std::string_view key) const
    {
        const TreeNode* node = main.messages.tvMessageBoxes.Find(key);
        return std::string(node ? node->Text() : "(no node)");
    }
    const RowList& Inbox() const { return main.messages.lvMessageList; }
    const RowList& SentList() const { return main.messages.lvSentList; }
};

} // namespace ruvenmark
