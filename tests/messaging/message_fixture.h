#pragma once

#include "messaging/message_form_rules.h"
#include "messaging/send_message.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

using Texts = std::vector<std::string>;

// A link that writes down what it is told, and fails on demand.
class NotedLink final : public IReportSource {
public:
    NotedLink(Texts& lines, const bool& bFail) : m_lines(lines), m_bFail(bFail) {}
    void EnterCommandMode() override { Note("command mode"); }
    void SendCommand(std::string_view line) override { Note(std::string(line)); }
    void SendFrame(std::string_view source, std::string_view dest, std::string_view via, std::string_view info) override
    {
        Note("frame " + std::string(source) + '|' + std::string(dest) + '|' + std::string(via) + '|' +
             std::string(info));
    }
    void SendServerLine(std::string_view line) override { Note("server " + std::string(line)); }

private:
    void Note(std::string line)
    {
        if (m_bFail)
            throw Failure("lost");
        m_lines.push_back(std::move(line));
    }
    Texts& m_lines;
    const bool& m_bFail;
};

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

// A started program of N0CALL with links of the test's making, all closed.
class MessageTest : public testing::Test {
protected:
    MessageTest()
    {
        main.links.aprs = std::make_unique<NotedLink>(sent, bRfFails);
        main.links.aprstcp = std::make_unique<NotedLink>(sent, bServerFails);
        for (const auto& [setting, text] :
             {std::pair(Setting::Call, "N0CALL"), std::pair(Setting::Dest, "APRS"), std::pair(Setting::Path, "WIDE1-1"),
              std::pair(Setting::MatchSSID, "False"), std::pair(Setting::All, "0")})
            Set(setting, text);
    }
    void Set(Setting setting, std::string_view text) { SetSetting(main.Settings, setting, text); }
    void Open(bool bTnc, bool bAgw, bool bServer)
    {
        main.links.bSerialConnected = bTnc;
        main.links.bSocketConnected = bAgw;
        main.links.bServerConnected = bServer;
    }
    Texts Take() { return std::exchange(sent, {}); }

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

    TestProgram program;
    MainWindow& main = program.main;
    bool bRfFails = false, bServerFails = false;
    Texts sent;
};

} // namespace ruvenmark
