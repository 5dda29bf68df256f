#include "ui/station_tree_commands.h"

#include "core/main_window.h"
#include "core/tree_selection.h"
#include "intake/station_store.h"
#include "links/server_link.h"
#include "links/tnc_link.h"
#include "map/markers.h"
#include "map/range_circles.h"
#include "map/show_on_map.h"
#include "map/station_notes.h"
#include "platform/freed_memory.h"
#include "tracking/filter_form_rules.h"
#include "ui/call_sign_page.h"
#include "ui/web_page.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

constexpr std::string_view kMyRoot = "My";

bool IsMyRoot(const TreeNode& node)
{
    return !node.Parent() && node.Word() == kMyRoot;
}

NodeKind KindOfRoot(const TreeNode& root)
{
    if (IsMyRoot(root))
        return NodeKind::MyRoot;
    return ChannelOfWord(root.Word()) ? NodeKind::ChannelRoot : NodeKind::LoadedRoot;
}

struct KindMenu {
    NodeKind kind;
    Menu menu;
};
constexpr std::array kKindMenus = {
    KindMenu{NodeKind::None, Menu::mnuRootPopup},         KindMenu{NodeKind::MyRoot, Menu::mnuMyStationPopup},
    KindMenu{NodeKind::MyEntry, Menu::mnuMyStationPopup}, KindMenu{NodeKind::MyDetail, Menu::mnuMyRangePopup},
    KindMenu{NodeKind::ChannelRoot, Menu::mnuRootPopup},  KindMenu{NodeKind::LoadedRoot, Menu::mnuRootPopup},
    KindMenu{NodeKind::Folder, Menu::mnuTcpSortPopup},    KindMenu{NodeKind::Station, Menu::mnuStationPopup},
};

std::optional<Channel> SelectedChannel(const MainWindow& main)
{
    const TreeNode* root = SelectedRoot(main.tvStationList);
    return root ? ChannelOf(*root) : std::nullopt;
}

void UnloadChannel(MainWindow& main, Channel channel)
{
    ChannelState& state = main.Of(channel);
    state.StationRanges.Clear();
    DeleteAllCircles(main, state, "mnuUnloadFolder");
    ForgetStations(main, channel);
}

} // namespace

NodeKind KindOf(const TreeNode* node)
{
    if (!node)
        return NodeKind::None;
    const TreeNode* parent = node->Parent();
    if (!parent)
        return KindOfRoot(*node);
    const TreeNode* grandparent = parent->Parent();
    if (!grandparent)
        return IsMyRoot(*parent) ? NodeKind::MyEntry : NodeKind::Folder;
    if (grandparent->Parent())
        return NodeKind::Fact;
    return IsMyRoot(*grandparent) ? NodeKind::MyDetail : NodeKind::Station;
}

Menu PopupMenuOf(const TreeNode* node)
{
    const NodeKind kind = KindOf(node);
    for (const KindMenu& row : kKindMenus)
        if (row.kind == kind)
            return row.menu;
    return Menu::None;
}

std::optional<PopupMenu> tvStationList_MouseUp(MainWindow& main, int button, TreeNode* hit)
{
    if ((button & kRightButton) == 0)
        return std::nullopt;
    if (hit)
        main.tvStationList.Select(hit);
    PopupMenu popup{PopupMenuOf(hit), {}};
    popup.items = MenuItems(main, popup.menu, hit);
    const bool bHasEntry = std::any_of(popup.items.begin(), popup.items.end(),
                                       [](const auto& item) { return item.state.bVisible && !item.IsLine(); });
    return bHasEntry ? std::optional(std::move(popup)) : std::nullopt;
}

void tvStationList_Expand(MainWindow& main, TreeNode& node)
{
    if (node.Parent() && node.Parent()->Parent())
        main.tvStationList.SetBold(node, false);
}

void ShowListedStation(MainWindow& main, Channel channel, std::string_view call)
{
    if (TreeNode* node = NodeOfStation(main, channel, call)) {
        main.tvStationList.Select(node);
        mnuViewPosition_Click(main);
    }
}

void RemoveListedStation(MainWindow& main, Channel channel, std::string_view call)
{
    if (TreeNode* node = NodeOfStation(main, channel, call)) {
        main.tvStationList.Select(node);
        mnuRemoveStation_Click(main);
    }
}

void mnuInfo_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    if (!station)
        return;
    const std::string page = CallSignPage(station->node->Text());
    main.window.bBrowserStarted = OpenInBrowser(main, page);
    ShowWebView(main, page);
}

void mnuTcpSort_Click(MainWindow& main)
{
    TreeNode* node = main.tvStationList.Selected();
    if (KindOf(node) != NodeKind::Folder)
        return;
    main.tvStationList.SetSorted(*node, true);
    main.tvStationList.SetSorted(*node, false);
}

void mnuShowUnknown_Click(MainWindow& main)
{
    const TreeNode* node = main.tvStationList.Selected();
    if (KindOf(node) != NodeKind::Folder || node->Word() != kUnknown)
        return;
    if (const auto channel = ChannelOf(*node))
        main.Of(*channel).bShowUnknown = !main.Of(*channel).bShowUnknown;
}

void mnuRemoveStation_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    if (!station || !station->channel)
        return;
    const Channel channel = *station->channel;
    const std::string call(station->node->Text());
    const std::string folderWord(station->folder->Word());
    if (main.services.prompts.AskToDelete("Are you sure you want to delete report for " + call + "?"))
        RemoveStation(main, channel, call, folderWord);
}

void mnuClearReports_Click(MainWindow& main)
{
    const auto channel = SelectedChannel(main);
    if (!channel)
        return;
    const std::string word(Traits(*channel).word);
    if (main.services.prompts.AskToDelete("Are you sure you want to delete all " + word + " reports?"))
        ClearChannelReports(main, *channel);
}

void mnuClearAllReports_Click(MainWindow& main)
{
    if (!main.services.prompts.AskToDelete("Are you sure you want to delete all reports?"))
        return;
    for (const Channel channel : kChannels)
        ClearChannelReports(main, channel);
}

void mnuUnloadFolder_Click(MainWindow& main)
{
    const TreeNode* root = SelectedRoot(main.tvStationList);
    if (!root || IsMyRoot(*root))
        return;
    const std::string key = root->Key();
    const auto channel = ChannelOf(*root);
    if (channel && Traits(*channel).bRootAtStart)
        return;
    if (!main.services.prompts.AskToDelete("Are you sure you want to unload all " + std::string(root->Text()) +
                                           " reports?"))
        return;
    TreeNode* const standing = main.tvStationList.Find(key);
    if (!standing)
        return;
    if (channel)
        main.links.FileLoading = false; // What is unloaded is not loaded any further.
    Attempt(main.abandoned, "mnuUnloadFolder",
            [&] { ForEachMarkerOfRoot(main, *standing, [](Pushpin& pin) { pin.Delete(); }); });
    if (channel)
        UnloadChannel(main, *channel);
    main.tvStationList.Remove(*standing);
    ReturnFreedMemory();
}

void mnuPopupConnect_Click(MainWindow& main)
{
    if (SelectedChannel(main) == Channel::RF)
        ConnectTnc(main);
    else if (SelectedChannel(main) == Channel::TCP)
        mnuConnectServer_Click(main);
}

void mnuPopupToggleFilter_Click(MainWindow& main)
{
    const auto channel = SelectedChannel(main);
    if (!channel)
        return;
    ReportFilter& filter = main.Of(*channel).Filter;
    filter.bOn = !filter.bOn;
    // The dialog may stand open, and what it shows is stored.
    main.frmFilter.fields[Index(*channel)].bOn = filter.bOn;
    main.services.dialogs.Refresh(Form::frmFilter);
}

void mnuPopupEditFilter_Click(MainWindow& main)
{
    if (const auto channel = SelectedChannel(main))
        ShowFilterOf(main, *channel);
}

} // namespace ruvenmark
