#pragma once

#include "ui/menus.h"

#include <cstdint>
#include <span>

namespace ruvenmark {

// What the state of an entry depends on: the program and, in a pop-up menu, the node under it.
struct MenuContext {
    const MainWindow& main;
    const TreeNode* node;
};
using StateRule = void (*)(const MenuContext&, MenuEntryState&);

// The forms of a pop-up menu on a root; any other menu has one form.
inline constexpr unsigned kNoNode = 1, kRfRoot = 2, kTcpRoot = 4, kFlRoot = 8, kLoadedRoot = 16, kOther = 32;
inline constexpr unsigned kChannelRoots = kRfRoot | kTcpRoot | kFlRoot;
inline constexpr unsigned kAnyRoot = kChannelRoots | kLoadedRoot;
inline constexpr unsigned kAlways = ~0U;

// A row of a menu: what stands there, in which forms it shows, and how it stands now.
struct MenuPlace {
    MenuEntry entry = MenuEntry::None;
    Menu submenu = Menu::None;
    StateRule rule = nullptr; // None: as designed.
    unsigned forms = kAlways;
};
inline constexpr MenuPlace kLine{};

std::span<const MenuPlace> PopupPlaces(Menu menu); // Empty for a menu that is no pop-up menu.

} // namespace ruvenmark
