#pragma once

#include "platform/event.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

enum class RightView : std::uint8_t { Map, Inbox, Sent, Web };
enum class LeftTree : std::uint8_t { Stations, Messages };

// Where nothing is stored, in twips.
inline constexpr std::int32_t kFirstLeft = 1000, kFirstTop = 1000, kFirstWidth = 6500, kFirstHeight = 6500;
inline constexpr std::int32_t kFirstSplitterLeft = 2000;

// What the logic knows of the main window. Lengths are twips: 1/15 of a pixel at scale 1.
struct WindowState {
    std::int32_t left = kFirstLeft, top = kFirstTop, width = kFirstWidth, height = kFirstHeight;
    std::int32_t splitterLeft = kFirstSplitterLeft;
    bool bShown = false; // From the first moment of the start on.
    bool bMinimised = false;
    bool bMaximized = false;
    bool bLeftPane = true;
    bool bToolBar = true;
    bool bStatusBar = true;
    bool bFullScreen = false;
    bool bStationList = false;
    std::string stationListPlace;     // As the window tells it; empty at first.
    bool bTreeFocus = false;          // The keys go to the station tree: the edit commands act on its selected node.
    bool bStationTreeVisible = false; // Hidden while it is built.
    RightView rightView = RightView::Map;
    LeftTree leftTree = LeftTree::Stations;
    bool bMapTicked = true;       // mnuViewMap
    bool bMessagesTicked = false; // mnuViewMessages
    std::string caption;
    std::string webAddress;      // What the web view shows: a path or a URL; empty at first.
    bool bBrowserStarted = true; // For the URL.
    Event<> Changed;
    Event<> CloseWanted; // The operator ends the program.
};

} // namespace ruvenmark
