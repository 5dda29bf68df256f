#pragma once

#include <string_view>

namespace ruvenmark {

class KeyedTree;
class RowList;
class TreeNode;
struct MainWindow;
struct MessageState;

inline constexpr std::string_view kMessagesNode = "Messages", kInboxNode = "Inbox", kSentNode = "Sent";

// The tree's nodes and their texts.
void BuildBoxTree(KeyedTree& tree);
void ShowSentCount(MessageState& state);   // "Sent Items (n)", the base text for an empty list.
void ShowUnreadCount(MessageState& state); // On "Inbox", and on "Messages" while that is closed.
void RaiseUnread(MessageState& state);
bool IsSentNode(const TreeNode* node);

// The list that the right pane shows; null where it shows something else.
RowList* VisibleList(MainWindow& main);
const RowList* VisibleList(const MainWindow& main);

// A box was chosen: its list comes to the right pane. The root shows nothing else.
void tvMessageBoxes_NodeClick(MainWindow& main, TreeNode& node);
// The list of the selected box in front, and the box tree in the left pane.
void mnuViewMessages_Click(MainWindow& main);
// The operator has been at the list: everything in it is read.
void lvMessageList_LostFocus(MainWindow& main);

} // namespace ruvenmark
