#include "ui/tool_bar.h"

#include <array>

namespace ruvenmark {

namespace {

using E = MenuEntry;

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
                                     ToolButton{"SendPosition", "Send position", E::mnuSendPosition},
                                     ToolButton{"SendMessage", "Send message", E::mnuSendMessage},
                                     ToolButton{"", "", E::None},
                                     ToolButton{"Help", "Help", E::mnuRuvenmarkHelp}};

} // namespace

std::span<const ToolButton> ToolBar()
{
    return kToolButtons;
}

} // namespace ruvenmark
