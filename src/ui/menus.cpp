#include "ui/menus.h"

#include "core/channel.h"
#include "platform/keyed_tree.h"
#include "ui/menu_places.h"
#include "ui/station_tree_commands.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

constexpr std::array kMenuBar = {Menu::File, Menu::Edit,  Menu::View, Menu::Communication,
                                 Menu::Send, Menu::Tools, Menu::Help};

unsigned FormOf(const TreeNode* node)
{
    switch (KindOf(node)) {
    case NodeKind::None:
        return kNoNode;
    case NodeKind::LoadedRoot:
        return kLoadedRoot;
    case NodeKind::ChannelRoot:
        return kRfRoot << static_cast<unsigned>(*ChannelOfWord(node->Word()));
    default:
        return kOther;
    }
}

MenuItem ItemAt(const MenuPlace& place, const MenuContext& at)
{
    if (place.submenu != Menu::None)
        return {MenuEntry::None, place.submenu, {std::string(MenuTitle(place.submenu))}};
    return {place.entry, Menu::None, StateOf(place.entry, at)};
}

} // namespace

std::span<const Menu> MenuBar()
{
    return kMenuBar;
}

std::string_view MenuTitle(Menu menu)
{
    const MenuInfo* info = FindMenu(menu);
    return info ? info->title : std::string_view();
}

MenuEntryState StateOf(MenuEntry entry, const MenuContext& at)
{
    const MenuEntryInfo& info = Info(entry);
    MenuEntryState state{std::string(info.caption)};
    if (info.rule)
        info.rule(at, state);
    return state;
}

std::vector<MenuItem> MenuItems(const MainWindow& main, Menu menu, const TreeNode* node)
{
    std::vector<MenuItem> items;
    const MenuInfo* info = FindMenu(menu);
    if (!info)
        return items;
    const unsigned form = FormOf(node);
    items.reserve(info->places.size());
    for (const MenuPlace& place : info->places) {
        MenuItem& item = items.emplace_back(ItemAt(place, {main, node}));
        if ((place.forms & form) == 0)
            item.state.bVisible = false;
    }
    return items;
}

const MenuEntryState* FindState(std::span<const MenuItem> items, MenuEntry entry)
{
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.entry == entry; });
    return found == items.end() ? nullptr : &found->state;
}

} // namespace ruvenmark
