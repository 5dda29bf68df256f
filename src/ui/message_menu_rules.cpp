// The rules of the pop-up menus of messages; see menu_rules.h.

#include "messaging/message_boxes.h"
#include "ui/menu_rules.h"

namespace ruvenmark::menu_rules {

namespace {

bool HasSelected(const RowList* list)
{
    return list && list->FirstSelected();
}

} // namespace

void OnReceived(const MenuContext& at, MenuEntryState& state)
{
    state.bVisible = at.main.window.rightView == RightView::Inbox;
    OnSelectedMessage(at, state);
}

void OnSent(const MenuContext& at, MenuEntryState& state)
{
    state.bVisible = at.main.window.rightView == RightView::Sent;
    OnSelectedMessage(at, state);
    state.bEnabled = state.bEnabled && at.main.links.IsAnyOpen();
}

void OnSelectedMessage(const MenuContext& at, MenuEntryState& state)
{
    state.bEnabled = HasSelected(VisibleList(at.main));
}

void OnAnyMessage(const MenuContext& at, MenuEntryState& state)
{
    const RowList* list = VisibleList(at.main);
    state.bEnabled = list && !list->IsEmpty();
}

void NameLocate(const MenuContext& at, MenuEntryState& state)
{
    if (at.main.window.rightView == RightView::Sent)
        state.caption = "Locate Recipient";
    OnSelectedMessage(at, state);
}

void NameClear(const MenuContext& at, MenuEntryState& state)
{
    state.bVisible = at.node && at.node->Parent();
    if (IsSentNode(at.node))
        state.caption = "Clear Sent Items";
    OnAnyMessage(at, state);
}

} // namespace ruvenmark::menu_rules
