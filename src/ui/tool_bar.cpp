#include "ui/tool_bar.h"

#include <array>

namespace ruvenmark {

namespace {

using E = MenuEntry;

constexpr std::array kConnects = {
    DropDownEntry{"mnuTbConnectTNC", E::mnuConnect}, DropDownEntry{"mnuTbConnectServer", E::mnuConnectServer},
    DropDownEntry{"mnuTbConnectGps", E::mnuConnectGps}, DropDownEntry{"mnuTbConnectWx", E::mnuConnectWx}};

constexpr std::array kToolButtons = {ToolButton{"New", "New map", E::mnuFileNew},
                                     ToolButton{"Open", "Open map", E::mnuFileOpen},
                                     ToolButton{"Save", "Save map", E::mnuFileSave},
                                     ToolButton{"Print", "Print map", E::mnuFilePrint},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"Cut", "Cut", E::mnuEditCut},
                                     ToolButton{"Copy", "Copy", E::mnuEditCopy},
                                     ToolButton{"Paste", "Paste", E::mnuEditPaste},
                                     ToolButton{"Delete", "Delete", E::mnuEditDelete},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"ViewLeft", "Left pane", E::mnuTreeView},
                                     ToolButton{"ViewMsgs", "Messages", E::mnuViewMessages},
                                     ToolButton{"ViewMap", "Map", E::mnuViewMap},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"Connect", "Connect", E::None, kConnects},
                                     ToolButton{"SendPosition", "Send position", E::mnuSendPosition},
                                     ToolButton{"SendMessage", "Send message", E::mnuSendMessage},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"Help", "Help", E::mnuRuvenmarkHelp}};

} // namespace

std::string DropDownCaption(const MainWindow& main, const DropDownEntry& entry)
{
    std::string caption = StateOf(entry.entry, {main, nullptr}).caption;
    std::erase(caption, '&');
    return caption;
}

std::span<const ToolButton> ToolBar()
{
    return kToolButtons;
}

} // namespace ruvenmark
