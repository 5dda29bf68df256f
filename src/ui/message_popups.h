#pragma once

#include "ui/menus.h"

#include <vector>

namespace ruvenmark {

class TreeNode;
struct MainWindow;

// A mouse button let go over the box tree: the right one chooses the box, so that the menu's commands act on it, and
// gives the menu to show. Empty where none opens.
std::vector<MenuItem> tvMessageBoxes_MouseUp(MainWindow& main, int button, TreeNode* hit);

} // namespace ruvenmark
