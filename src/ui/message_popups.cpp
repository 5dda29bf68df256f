#include "ui/message_popups.h"

#include "messaging/message_boxes.h"
#include "ui/station_tree_commands.h"

namespace ruvenmark {

std::vector<MenuItem> tvMessageBoxes_MouseUp(MainWindow& main, int button, TreeNode* hit)
{
    if ((button & kRightButton) == 0 || !hit)
        return {};
    tvMessageBoxes_NodeClick(main, *hit);
    return MenuItems(main, Menu::mnuMsgBoxPopup, hit);
}

} // namespace ruvenmark
