#pragma once

#include <cstdint>

namespace ruvenmark {

struct MainWindow;

// Lengths are twips: 1/15 of a pixel at scale 1.
inline constexpr double kTwipsPerPixel = 15;
std::int32_t TwipsOfPixels(double pixels);
int PixelsOfTwips(std::int32_t twips); // Nearest.

inline constexpr std::int32_t kSplitterMargin = 500; // Of the splitter from either edge of the window.
inline constexpr std::int32_t kMinWindowWidth = 3000;

// What SizeControls lays out. The bars' heights count only while they show.
struct LayoutInput {
    std::int32_t scaleWidth = 0, scaleHeight = 0;
    std::int32_t toolBarHeight = 0, statusBarHeight = 0;
    bool bToolBar = true, bStatusBar = true, bLeftPane = true;
};
struct LayoutRect {
    std::int32_t left = 0, top = 0, width = 0, height = 0;
    bool bVisible = true;
    friend bool operator==(const LayoutRect&, const LayoutRect&) = default;
};
struct WindowLayout {
    LayoutRect toolBar, statusBar; // Across the whole window.
    LayoutRect tree;               // tvStationList and tvMessageBoxes take this place.
    LayoutRect imgSplitter;        // The grip, between the panes.
    LayoutRect rightPane;          // mpCtrl, lvMessageList, lvSentList and webCtrl take this place.
};

// The layout for a left pane of width x, which is first kept within the window.
WindowLayout SizeControls(const LayoutInput& input, std::int32_t x);

// Where the splitter may stand: not nearer than kSplitterMargin to either edge.
std::int32_t ClampSplitter(std::int32_t x, std::int32_t scaleWidth);
// The splitter was let go at x.
void DropSplitter(MainWindow& main, std::int32_t x, std::int32_t scaleWidth);

// The width that a resized window takes.
std::int32_t AllowedWindowWidth(std::int32_t width);
// The place of a window that is no icon, kept for the next start.
void KeepGeometry(MainWindow& main, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);

// Commands. Each raises WindowState::Changed.
void mnuTreeView_Click(MainWindow& main);
void mnuViewToolbar_Click(MainWindow& main);
void mnuViewStatusBar_Click(MainWindow& main);
void mnuViewFullScreen_Click(MainWindow& main);
void mnuViewMap_Click(MainWindow& main);

} // namespace ruvenmark
