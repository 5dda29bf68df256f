#include "messaging/message_boxes.h"

#include "core/main_window.h"
#include "core/views.h"
#include "platform/numbers.h"

#include <limits>
#include <string>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::string_view kMessagesText = "Messages", kInboxText = "Inbox", kSentText = "Sent Items";

// Null before the tree is built.
TreeNode* BoxNode(const KeyedTree& tree, std::string_view word)
{
    const TreeNode* root = tree.Find(kMessagesNode);
    return root ? tree.Find(*root, word) : nullptr;
}

std::string Counted(std::string_view text, std::size_t count)
{
    std::string counted(text);
    if (count > 0)
        counted += " (" + ShortText(static_cast<std::int64_t>(count)) + ")";
    return counted;
}

} // namespace

void BuildBoxTree(KeyedTree& tree)
{
    if (tree.Find(kMessagesNode))
        return;
    TreeNode& root = tree.AddRoot(kMessagesNode, kMessagesText, "PostOffice");
    TreeNode& inbox = tree.Add(root, kInboxNode, kInboxText, "Received");
    tree.Add(root, kSentNode, kSentText, "Up");
    tree.SetExpanded(root, true);
    tree.Select(&inbox);
}

void ShowSentCount(MessageState& state)
{
    if (TreeNode* node = BoxNode(state.tvMessageBoxes, kSentNode))
        state.tvMessageBoxes.SetText(*node, Counted(kSentText, state.lvSentList.Count()));
}

void ShowUnreadCount(MessageState& state)
{
    KeyedTree& tree = state.tvMessageBoxes;
    const auto count = static_cast<std::size_t>(state.UnreadCount);
    if (TreeNode* inbox = BoxNode(tree, kInboxNode))
        tree.SetText(*inbox, Counted(kInboxText, count));
    TreeNode* root = tree.Find(kMessagesNode);
    if (root && (count == 0 || !root->IsExpanded()))
        tree.SetText(*root, Counted(kMessagesText, count));
}

void RaiseUnread(MessageState& state)
{
    if (state.UnreadCount < std::numeric_limits<std::int16_t>::max())
        ++state.UnreadCount;
    ShowUnreadCount(state);
}

bool IsSentNode(const TreeNode* node)
{
    return node && node->Parent() && node->Word() == kSentNode;
}

const RowList* VisibleList(const MainWindow& main)
{
    if (main.window.rightView == RightView::Inbox)
        return &main.messages.lvMessageList;
    return main.window.rightView == RightView::Sent ? &main.messages.lvSentList : nullptr;
}

RowList* VisibleList(MainWindow& main)
{
    return const_cast<RowList*>(VisibleList(std::as_const(main)));
}

void tvMessageBoxes_NodeClick(MainWindow& main, TreeNode& node)
{
    main.messages.tvMessageBoxes.Select(&node);
    if (!node.Parent())
        return;
    if (!IsSentNode(&node))
        main.sbStatusBar.SetPanel(Panel::NewMessage, "");
    main.window.rightView = IsSentNode(&node) ? RightView::Sent : RightView::Inbox;
    main.window.Changed.Raise();
}

void mnuViewMessages_Click(MainWindow& main)
{
    main.sbStatusBar.SetPanel(Panel::NewMessage, "");
    ShowMessageView(main.window,
                    IsSentNode(main.messages.tvMessageBoxes.Selected()) ? RightView::Sent : RightView::Inbox);
}

void lvMessageList_LostFocus(MainWindow& main)
{
    MessageState& state = main.messages;
    state.lvMessageList.ClearBold();
    state.UnreadCount = 0;
    ShowUnreadCount(state);
}

} // namespace ruvenmark
