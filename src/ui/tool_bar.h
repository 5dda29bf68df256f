#pragma once

#include "ui/menus.h"

#include <span>
#include <string>
#include <string_view>

namespace ruvenmark {

// An entry below a button: it has a key of its own, and does what the menu's entry does.
struct DropDownEntry {
    std::string_view key; // "mnuTbConnectTNC"
    MenuEntry entry = MenuEntry::None;
};
// As the menu's entry reads now; it has no mnemonic here.
std::string DropDownCaption(const MainWindow& main, const DropDownEntry& entry);

// The main tool bar; txtTbCoordinates stands behind the last button.
struct ToolButton {
    std::string_view key;                         // "New"; empty for a line.
    std::string_view text;                        // The tip and the accessible name.
    MenuEntry entry = MenuEntry::None;            // The command, and whose state the button shows.
    std::span<const DropDownEntry> dropDown = {}; // Of a button that opens them instead of a command of its own.
};
std::span<const ToolButton> ToolBar();

} // namespace ruvenmark
