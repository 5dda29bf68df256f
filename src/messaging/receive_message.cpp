#include "messaging/receive_message.h"

#include "core/main_window.h"
#include "messaging/message_boxes.h"
#include "messaging/message_files.h"
#include "messaging/send_message.h"
#include "platform/text.h"

#include <string>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::size_t kAckLength = 3;

ChangedBy ChangedByOf(Channel channel)
{
    return channel == Channel::FL ? ChangedBy::Load : ChangedBy::LinkOrOperator;
}

bool IsBulletin(std::string_view to)
{
    return to.starts_with("BLN");
}

void TakeAck(MainWindow& main, Channel channel, const MessageReport& report)
{
    MessageState& state = main.messages;
    ListRow::Texts sent;
    sent[message_column::kSentFrom] = report.to;
    sent[message_column::kNumber] = report.text.substr(kAckLength);
    ListRow* row = state.lvSentList.FindFirst(kByNumber, sent);
    if (!row || !row->IsBold())
        return;
    state.lvSentList.SetBold(*row, false);
    MarkChanged(state.sent, ChangedByOf(channel));
}

void Acknowledge(MainWindow& main, const MessageReport& report)
{
    const std::string call = SettingText(main.Settings, Setting::Call);
    if (call.empty() || report.messageNumber.empty() || !IsMessageForMe(main, report.to))
        return;
    const std::string via = SettingText(main.Settings, Setting::Path);
    SendAprsMessage(main, call, report.source, via, "ack" + std::string(report.messageNumber), "");
}

void FileReceived(MainWindow& main, Channel channel, const MessageReport& report, ListRow::Texts row)
{
    MessageState& state = main.messages;
    state.lvMessageList.Add(std::move(row), true, IsBulletin(report.to) ? RowIcon::Bulletin : RowIcon::Message);
    MarkChanged(state.inbox, ChangedByOf(channel));
    if (main.window.rightView != RightView::Inbox)
        main.sbStatusBar.SetPanel(Panel::NewMessage, "New Message");
    RaiseUnread(state);
}

void PlayWave(MainWindow& main, bool bForMe)
{
    const std::string file = SettingText(main.Settings, Setting::WaveFile);
    if (file.empty() || !main.services.files.Exists(file))
        return;
    const SettingsState& settings = main.Settings;
    if (bForMe || (SettingBool(settings, Setting::All) && SettingBool(settings, Setting::PlayAll)))
        main.services.sound.PlayAndWait(file);
}

void TakeMessage(MainWindow& main, Channel channel, const MessageReport& report)
{
    const SettingsState& settings = main.Settings;
    const std::string& subnet = SettingText(settings, Setting::MessageSubnet);
    if (!subnet.empty() && CompareIgnoringCase(subnet, report.dest) != 0)
        return;
    const bool bBulletin = IsBulletin(report.to);
    if (bBulletin && !SettingBool(settings, Setting::ReceiveBulletin))
        return;
    if (channel != Channel::FL)
        Acknowledge(main, report);
    ListRow::Texts row = {std::string(report.source), std::string(report.to),
                          std::string(report.path),   std::string(main.services.clock.LocalNowText()),
                          std::string(report.text),   std::string(report.messageNumber)};
    for (std::string& field : row)
        field = CarriedText(field);
    if (main.messages.lvMessageList.FindFirst(kByMessage, row))
        return;
    const bool bForMe = IsMessageForMe(main, report.to);
    if (SettingBool(settings, Setting::All) || bForMe || bBulletin)
        FileReceived(main, channel, report, std::move(row));
    PlayWave(main, bForMe);
}

} // namespace

bool IsMessageForMe(const MainWindow& main, std::string_view to)
{
    const std::string& call = SettingText(main.Settings, Setting::Call);
    if (to == call)
        return true;
    const std::string_view base = to.substr(0, to.find('-'));
    return call.size() >= base.size() &&
           CompareIgnoringCase(std::string_view(call).substr(0, base.size()), base) == 0 &&
           !SettingBool(main.Settings, Setting::MatchSSID);
}

void aprs_ReportAprsMsg(MainWindow& main, Channel channel, const MessageReport& report)
{
    Attempt(main.abandoned, "ReportAprsMsg", [&] {
        if (ToUpper(report.text.substr(0, kAckLength)) == "ACK")
            TakeAck(main, channel, report);
        else
            TakeMessage(main, channel, report);
    });
}

} // namespace ruvenmark
