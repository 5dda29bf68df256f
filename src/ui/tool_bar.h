#pragma once

#include "ui/menus.h"

#include <span>
#include <string_view>

namespace ruvenmark {

// The main tool bar; txtTbCoordinates stands behind the last button.
struct ToolButton {
    std::string_view key;              // "New"; empty for a line.
    std::string_view text;             // The tip and the accessible name.
    MenuEntry entry = MenuEntry::None; // The command, and whose state the button shows.
};
std::span<const ToolButton> ToolBar();

} // namespace ruvenmark
