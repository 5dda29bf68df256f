#pragma once

#include "ui/menus.h"

#include <span>
#include <string_view>

namespace ruvenmark {

// The forms of a pop-up menu on a root; any other menu has one form.
inline constexpr unsigned kNoNode = 1, kRfRoot = 2, kTcpRoot = 4, kFlRoot = 8, kLoadedRoot = 16, kOther = 32;
inline constexpr unsigned kChannelRoots = kRfRoot | kTcpRoot | kFlRoot;
inline constexpr unsigned kAnyRoot = kChannelRoots | kLoadedRoot;
inline constexpr unsigned kAlways = ~0U;

// A row of a menu: what stands there, and in which forms it shows.
struct MenuPlace {
    MenuEntry entry = MenuEntry::None;
    Menu submenu = Menu::None;
    unsigned forms = kAlways;
};

struct MenuInfo {
    Menu menu;
    std::string_view title; // Empty for a pop-up menu.
    std::span<const MenuPlace> places;
};
const MenuInfo* FindMenu(Menu menu); // Null for Menu::None.

} // namespace ruvenmark
