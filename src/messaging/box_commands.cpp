#include "messaging/box_commands.h"

#include "core/main_window.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "map/show_on_map.h"
#include "map/symbols.h"
#include "messaging/message_boxes.h"
#include "messaging/message_files.h"
#include "messaging/send_message.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>
#include <string>

namespace ruvenmark {

namespace {

namespace column = message_column;

constexpr Channel kLiveChannels[] = {Channel::RF, Channel::TCP};

// Texts and marks behind a change of the list.
void TellDeleted(MainWindow& main, const RowList& list)
{
    MessageState& state = main.messages;
    if (&list == &state.lvSentList) {
        MarkChanged(state.sent, ChangedBy::LinkOrOperator);
        ShowSentCount(state);
        return;
    }
    constexpr std::size_t kMost = std::numeric_limits<std::int16_t>::max();
    MarkChanged(state.inbox, ChangedBy::LinkOrOperator);
    state.UnreadCount = static_cast<std::int16_t>(std::min(list.CountBold(), kMost));
    ShowUnreadCount(state);
}

void ComeToFront(MainWindow& main, Pushpin pin)
{
    pin.SetBalloonState(1);
    ShowOnMap(main, pin);
}

bool ShowMarkerOf(MainWindow& main, const std::string& call)
{
    for (const Channel channel : kLiveChannels)
        if (auto pin = main.mpCtrl.RequireMap().FindPushpin(MarkerName(Traits(channel).word, call))) {
            ComeToFront(main, *pin);
            return true;
        }
    return false;
}

bool ShowRecordOf(MainWindow& main, const std::string& call)
{
    for (const Channel channel : kLiveChannels) {
        const Record* record = main.Of(channel).Stations.Find(call);
        const auto point = record ? PositionOf(*record) : std::nullopt;
        if (!point)
            continue;
        Pushpin pin = ShowMarkerOfStation(main, Traits(channel).word, call, *record, *point);
        pin.SetSymbol(SymbolId(record->Get(Field::Symbol)));
        ComeToFront(main, pin);
        return true;
    }
    return false;
}

} // namespace

void mnuMsgOpen_Click(MainWindow& main)
{
    const ListRow* row = main.messages.lvMessageList.FirstSelected();
    if (!row || main.window.rightView != RightView::Inbox)
        return;
    OpenMessageForm& form = main.frmOpenMessage;
    const bool bBulletin = ToUpper(row->Text(column::kInboxTo)).starts_with("BLN");
    form = {(bBulletin ? "Bulletin " : "Message ") + row->Text(column::kNumber),
            row->Text(column::kItem),
            row->Text(column::kInboxTo),
            row->Text(column::kDate),
            row->Text(column::kText),
            false};
    main.services.dialogs.Run(Form::frmOpenMessage, main);
    if (form.bReply)
        SendMessageTo(main, form.txtFrom);
}

void mnuMsgDelete_Click(MainWindow& main)
{
    RowList* list = VisibleList(main);
    if (!list || !main.services.prompts.AskToDelete("Are you sure you want to delete the selected message(s)?"))
        return;
    list->RemoveSelected();
    TellDeleted(main, *list);
}

void mnuMsgDeleteAll_Click(MainWindow& main)
{
    RowList* list = VisibleList(main);
    if (!list)
        return;
    const bool bInbox = list == &main.messages.lvMessageList;
    if (!main.services.prompts.AskToDelete(bInbox ? "Are you sure you want to delete all received messages?"
                                                  : "Are you sure you want to delete all sent messages?"))
        return;
    list->Clear();
    TellDeleted(main, *list);
}

void mnuMsgLocate_Click(MainWindow& main)
{
    const RowList* list = VisibleList(main);
    const ListRow* row = list ? list->FirstSelected() : nullptr;
    if (!row)
        return;
    const std::string call = row->Text(column::kItem);
    Attempt(main.abandoned, "mnuMsgLocate", [&] {
        if (!ShowMarkerOf(main, call) && !ShowRecordOf(main, call))
            main.services.prompts.Message("No position report available for station " + call);
    });
}

} // namespace ruvenmark
