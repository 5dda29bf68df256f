#include "messaging/send_message.h"

#include "core/main_window.h"
#include "messaging/message_boxes.h"
#include "messaging/message_files.h"
#include "messaging/message_form_rules.h"
#include "outgoing/my_station.h"
#include "outgoing/send_report.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <string>
#include <utility>

namespace ruvenmark {

namespace {

namespace column = message_column;

constexpr std::string_view kBulletin = "BLN", kAck = "ack";
constexpr std::size_t kAddresseeWidth = 9;

struct Message {
    std::string from, to, via, text, number;
};

std::string Body(const Message& message)
{
    std::string addressee = message.to;
    if (addressee.size() < kAddresseeWidth)
        addressee.resize(kAddresseeWidth, ' ');
    std::string body = ":" + addressee + ":" + message.text;
    if (!message.number.empty())
        body += "{" + message.number;
    return body;
}

void Transmit(MainWindow& main, const Message& message, bool bAck)
{
    const RoadBoxes& roads = main.frmMessage.roads;
    const std::string body = Body(message);
    const std::string dest = SettingText(main.Settings, Setting::Dest);
    SendReport(main, {message.from, dest, message.via, body},
               OpenRoads(main.links, bAck || roads.chkRF, bAck || roads.chkTCP));
}

void FileSent(MainWindow& main, const Message& message)
{
    MessageState& state = main.messages;
    ListRow::Texts row = {message.to,   message.from,  message.via, std::string(main.services.clock.LocalNowText()),
                          message.text, message.number};
    for (std::string& field : row)
        field = CarriedText(field);
    if (state.lvSentList.FindFirst(kByMessage, row))
        return;
    const bool bBulletin = message.to.starts_with(kBulletin);
    state.lvSentList.Add(std::move(row), !bBulletin, bBulletin ? RowIcon::Bulletin : RowIcon::Message);
    MarkChanged(state.sent, ChangedBy::LinkOrOperator);
    ShowSentCount(state);
}

// Without the blank that parts it from the delimiter in the box.
std::string TextOf(const ListRow& row)
{
    std::string text = row.Text(column::kText);
    if (text.ends_with("# "))
        text.pop_back();
    return text;
}

void RunMessageForm(MainWindow& main)
{
    frmMessage_Load(main);
    main.services.dialogs.Run(Form::frmMessage, main);
    if (main.frmMessage.bCancelled)
        return;
    const MessageForm sent = main.frmMessage;
    SendAprsMessage(main, sent.sFrom, sent.sTo, sent.sVia, sent.sText, "");
}

} // namespace

void SendAprsMessage(MainWindow& main, std::string_view from, std::string_view to, std::string_view via,
                     std::string_view text, std::string_view number)
{
    Message message{std::string(from), std::string(to), std::string(via), std::string(text), std::string(number)};
    const bool bAck = text.starts_with(kAck);
    if (!bAck && !to.starts_with(kBulletin) && number.empty())
        message.number = ShortText(std::int64_t{main.frmMessage.lMessageNumber});
    if (bAck) {
        Attempt(main.abandoned, "SendAprsMessage, acknowledgement", [&] { Transmit(main, message, true); });
        return;
    }
    const bool bWell = Attempt(main.abandoned, "SendAprsMessage", [&] {
        Transmit(main, message, false);
        FileSent(main, message);
    });
    if (!bWell)
        main.services.prompts.Message("Message not sent correctly, check TNC connection!");
}

void mnuSendMessage_Click(MainWindow& main)
{
    RunMessageForm(main);
    ShowOwnCall(main);
}

void SendMessageTo(MainWindow& main, std::string_view to)
{
    main.frmMessage.bPrefillTo = true;
    main.frmMessage.sTo = to;
    mnuSendMessage_Click(main);
}

void mnuMsgReply_Click(MainWindow& main)
{
    if (const ListRow* row = main.messages.lvMessageList.FirstSelected())
        SendMessageTo(main, row->Text(column::kItem));
}

void mnuPop1SendMsg_Click(MainWindow& main)
{
    if (const TreeNode* node = main.tvStationList.Selected())
        SendMessageTo(main, node->Text());
}

void mnuMsgForward_Click(MainWindow& main)
{
    const ListRow* row = main.messages.lvMessageList.FirstSelected();
    if (!row)
        return;
    main.frmMessage.bPrefillText = true;
    main.frmMessage.sText = TextOf(*row);
    mnuSendMessage_Click(main);
}

void mnuMsgSendAgain_Click(MainWindow& main)
{
    const ListRow* row = main.messages.lvSentList.FirstSelected();
    if (!row || !main.links.IsAnyOpen())
        return;
    RoadBoxes& roads = main.frmMessage.roads;
    const RoadBoxes former = roads;
    roads.chkRF = main.links.IsOnAir();
    roads.chkTCP = main.links.bServerConnected;
    SendAprsMessage(main, row->Text(column::kSentFrom), row->Text(column::kItem), row->Text(column::kSentVia),
                    TextOf(*row), row->Text(column::kNumber));
    roads.chkRF = former.chkRF;
    roads.chkTCP = former.chkTCP;
}

} // namespace ruvenmark
