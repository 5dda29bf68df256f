#pragma once

#include "core/channel.h"
#include "ui/menus.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ruvenmark {

class TreeNode;
struct MainWindow;

enum class NodeKind : std::uint8_t {
    None, // Nothing under the pointer.
    MyRoot,
    MyEntry,
    MyDetail,
    ChannelRoot,
    LoadedRoot, // Any other root.
    Folder,
    Station, // Its text is the call.
    Fact
};
NodeKind KindOf(const TreeNode* node);

// The menu of the node's kind; Menu::None where none opens, or where none of its entries works yet.
Menu PopupMenuOf(const TreeNode* node);

struct PopupMenu {
    Menu menu;
    std::vector<MenuItem> items;
};

inline constexpr int kRightButton = 2; // Bit of the button mask.

// A mouse button let go over the tree: the right one selects the node under the pointer, if any, and gives the menu to
// show. The menu key does the same on the selected node.
std::optional<PopupMenu> tvStationList_MouseUp(MainWindow& main, int button, TreeNode* hit);
// A node was expanded: a station is no news any more.
void tvStationList_Expand(MainWindow& main, TreeNode& node);

// Selects the station and shows it on the map.
void ShowListedStation(MainWindow& main, Channel channel, std::string_view call);
// Selects the station and deletes its report, after the question.
void RemoveListedStation(MainWindow& main, Channel channel, std::string_view call);

// Commands on the selected node.
void mnuTcpSort_Click(MainWindow& main);     // Sorts once: later arrivals go to the end.
void mnuShowUnknown_Click(MainWindow& main); // Turns the folder's flag around.
void mnuRemoveStation_Click(MainWindow& main);
void mnuClearReports_Click(MainWindow& main);
void mnuClearAllReports_Click(MainWindow& main);
void mnuUnloadFolder_Click(MainWindow& main); // Any root but RF and TCP.
void mnuPopupConnect_Click(MainWindow& main); // The link of the root.
void mnuPopupToggleFilter_Click(MainWindow& main);
void mnuPopupEditFilter_Click(MainWindow& main);
void mnuInfo_Click(MainWindow& main);

} // namespace ruvenmark
