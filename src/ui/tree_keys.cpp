#include "ui/tree_keys.h"

#include "core/main_window.h"
#include "map/edit_commands.h"
#include "map/markers.h"
#include "ui/station_tree_commands.h"

namespace ruvenmark {

// The focus stays with the tree behind a page that hides it. With nothing selected there the map's selection is meant.
bool IsTreeInFocus(const MainWindow& main)
{
    const WindowState& window = main.window;
    return window.bTreeFocus && window.bLeftPane && window.leftTree == LeftTree::Stations &&
           main.tvStationList.Selected();
}

std::string CopiedText(const TreeNode& node)
{
    std::string text(node.Text());
    if (KindOf(&node) == NodeKind::Station)
        for (const auto& fact : node.Children())
            text.append("\r\n").append(fact->Text());
    return text;
}

bool ShowSelectedNode(MainWindow& main)
{
    TreeNode* node = main.tvStationList.Selected();
    switch (KindOf(node)) {
    case NodeKind::Fact:
        main.tvStationList.Select(node->Parent());
        [[fallthrough]];
    case NodeKind::Station:
        mnuViewPosition_Click(main);
        return true;
    case NodeKind::MyDetail:
        mnuViewMyPosition_Click(main);
        return true;
    default:
        return false;
    }
}

void mnuEditCopy_Run(MainWindow& main)
{
    if (IsTreeInFocus(main))
        main.services.desktop.SetClipboardText(CopiedText(*main.tvStationList.Selected()));
    else
        mnuEditCopy_Click(main);
}

void mnuEditDelete_Run(MainWindow& main)
{
    if (IsTreeInFocus(main))
        mnuRemoveStation_Click(main);
    else
        mnuEditDelete_Click(main);
}

} // namespace ruvenmark
