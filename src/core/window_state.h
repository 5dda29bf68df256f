#pragma once

#include "platform/event.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

enum class RightView : std::uint8_t { Map, Inbox, Sent, Web };
enum class LeftTree : std::uint8_t { Stations, Messages };

// What the logic knows of the main window. Lengths are twips: 1/15 of a pixel at scale 1.
struct WindowState {
    std::int32_t left = 1000, top = 1000, width = 6500, height = 6500;
    std::int32_t splitterLeft = 2000;
    bool bGeometryLoaded = false;
    bool bMinimised = false;
    bool bLeftPane = true;
    bool bToolBar = true;
    bool bStatusBar = true;
    bool bFullScreen = false;
    bool bStationTreeVisible = false; // Hidden while it is built.
    RightView rightView = RightView::Map;
    LeftTree leftTree = LeftTree::Stations;
    bool bMapTicked = true;       // mnuViewMap
    bool bMessagesTicked = false; // mnuViewMessages
    std::string caption;
    std::string webAddress; // What the web view shows: a path or a URL; empty at first.
    Event<> Changed;
    Event<> CloseWanted; // The operator ends the program.
};

} // namespace ruvenmark
