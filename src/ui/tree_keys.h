#pragma once

#include <string>

namespace ruvenmark {

class TreeNode;
struct MainWindow;

// What the keys do in the station tree. While it has the focus, the edit commands act on its selected node.

// The node's text; of a station a line each for the call and its facts, CR LF between.
std::string CopiedText(const TreeNode& node);
// Whether the edit commands are the tree's.
bool IsTreeInFocus(const MainWindow& main);

// Enter, or a double click: the station of the selected node, or the own one, on the map. False for any other node.
bool ShowSelectedNode(MainWindow& main);

// The commands of the Edit menu, by what has the focus. Delete asks as "Delete Report" does.
void mnuEditCopy_Run(MainWindow& main);
void mnuEditDelete_Run(MainWindow& main);

} // namespace ruvenmark
