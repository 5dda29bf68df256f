#include "desktop/action_icons.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

using E = MenuEntry;

struct ActionIcon {
    MenuEntry entry;
    const char* name;
};
constexpr std::array kIcons = {
    ActionIcon{E::mnuFileNew, "new"},
    ActionIcon{E::mnuFileOpen, "open"},
    ActionIcon{E::mnuFileSave, "save"},
    ActionIcon{E::mnuImportStations, "load-stations"},
    ActionIcon{E::mnuLoadStations, "load-stations"},
    ActionIcon{E::mnuFilePrint, "print"},
    ActionIcon{E::mnuFileClose, "close"},
    ActionIcon{E::mnuEditCut, "cut"},
    ActionIcon{E::mnuEditCopy, "copy"},
    ActionIcon{E::mnuEditPaste, "paste"},
    ActionIcon{E::mnuEditDelete, "delete"},
    ActionIcon{E::mnuCopyMap, "copy-map"},
    ActionIcon{E::mnuFind, "find"},
    ActionIcon{E::mnuTreeView, "view-left"},
    ActionIcon{E::mnuViewMap, "view-map"},
    ActionIcon{E::mnuConnect, "connect-tnc"},
    ActionIcon{E::mnuConnectServer, "connect-server"},
    ActionIcon{E::mnuConnectGps, "connect-gps"},
    ActionIcon{E::mnuConnectWx, "connect-wx"},
    ActionIcon{E::mnuPopupConnect, "connect"},
    ActionIcon{E::mnuSendPosition, "send-position"},
    ActionIcon{E::mnuViewStations, "stations"},
    ActionIcon{E::mnuZoomToStations, "fit-world"},
    ActionIcon{E::mnuViewMessages, "view-messages"},
    ActionIcon{E::mnuSendMessage, "send-message"},
    ActionIcon{E::mnuPop1SendMsg, "send-message"},
    ActionIcon{E::mnuMsgNew, "send-message"},
    ActionIcon{E::mnuMsgboxNewMsg, "send-message"},
    ActionIcon{E::mnuMsgDelete, "delete"},
    ActionIcon{E::mnuMsgLocate, "crosshair"},
    ActionIcon{E::mnuMyStationSend, "send-position"},
    ActionIcon{E::mnuViewOptions, "settings"},
    ActionIcon{E::mnuMyStationEdit, "settings"},
    ActionIcon{E::mnuMsgboxOptions, "settings"},
    ActionIcon{E::mnuToolsFilter, "filter"},
    ActionIcon{E::mnuPopupEditFilter, "filter"},
    ActionIcon{E::mnuTrackedStations, "track"},
    ActionIcon{E::mnuToolsShowTrackLine, "track-line"},
    ActionIcon{E::mnuStartTrack, "track"},
    ActionIcon{E::mnuHideAllRangeCircles, "circle"},
    ActionIcon{E::mnuShowRange, "circle"},
    ActionIcon{E::mnuDirections, "directions"},
    ActionIcon{E::mnuRuvenmarkHelp, "help"},
    ActionIcon{E::mnuHelpAbout, "info"},
    ActionIcon{E::mnuInfo, "info"},
    ActionIcon{E::mnuViewPosition, "crosshair"},
    ActionIcon{E::mnuViewMyPosition, "crosshair"},
    ActionIcon{E::mnuRemoveStation, "delete"},
    ActionIcon{E::mnuClearReports, "delete"},
    ActionIcon{E::mnuClearAllReports, "delete"},
    ActionIcon{E::mnuTcpSort, "sort"},
    ActionIcon{E::mnuRemoveAllTracks, "delete"},
};

} // namespace

QString ActionIconName(MenuEntry entry)
{
    const auto* found =
        std::find_if(kIcons.begin(), kIcons.end(), [&](const auto& icon) { return icon.entry == entry; });
    return found == kIcons.end() ? QString() : QString::fromLatin1(found->name);
}

} // namespace ruvenmark
