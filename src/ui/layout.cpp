#include "ui/layout.h"

#include "core/main_window.h"
#include "core/views.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr std::int32_t kGripWidth = 40;    // Between the panes.
constexpr std::int32_t kRightMargin = 100; // Right of the right pane.

std::int32_t NotNegative(std::int32_t length)
{
    return std::max(length, 0);
}

} // namespace

std::int32_t TwipsOfPixels(double pixels)
{
    return static_cast<std::int32_t>(std::lround(pixels * kTwipsPerPixel));
}

int PixelsOfTwips(std::int32_t twips)
{
    return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

std::int32_t ClampSplitter(std::int32_t x, std::int32_t scaleWidth)
{
    if (scaleWidth < 2 * kSplitterMargin)
        return NotNegative(scaleWidth / 2);
    return std::clamp(x, kSplitterMargin, scaleWidth - kSplitterMargin);
}

WindowLayout SizeControls(const LayoutInput& input, std::int32_t x)
{
    const std::int32_t top = input.bToolBar ? input.toolBarHeight : 0;
    const std::int32_t statusHeight = input.bStatusBar ? input.statusBarHeight : 0;
    const std::int32_t height = NotNegative(input.scaleHeight - top - statusHeight);
    const std::int32_t treeWidth = ClampSplitter(x, input.scaleWidth);

    WindowLayout layout;
    layout.toolBar = {0, 0, input.scaleWidth, input.toolBarHeight, input.bToolBar};
    layout.statusBar = {0, top + height, input.scaleWidth, input.statusBarHeight, input.bStatusBar};
    layout.tree = {0, top, treeWidth, height, input.bLeftPane};
    layout.imgSplitter = {treeWidth, top, kGripWidth, height, input.bLeftPane};
    if (input.bLeftPane)
        layout.rightPane = {treeWidth + kGripWidth, top,
                            NotNegative(input.scaleWidth - (treeWidth + kGripWidth + kRightMargin)), height};
    else
        layout.rightPane = {0, top, NotNegative(input.scaleWidth - kRightMargin), height};
    return layout;
}

void DropSplitter(MainWindow& main, std::int32_t x, std::int32_t scaleWidth)
{
    main.window.splitterLeft = ClampSplitter(x, scaleWidth);
    main.window.Changed.Raise();
}

std::int32_t AllowedWindowWidth(std::int32_t width)
{
    return std::max(width, kMinWindowWidth);
}

void KeepGeometry(MainWindow& main, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height)
{
    WindowState& window = main.window;
    window.bMinimised = false;
    window.left = left;
    window.top = top;
    window.width = AllowedWindowWidth(width);
    window.height = height;
}

void mnuTreeView_Click(MainWindow& main)
{
    WindowState& window = main.window;
    window.bLeftPane = !window.bLeftPane;
    if (window.bLeftPane) {
        const bool bMessages = window.rightView == RightView::Inbox || window.rightView == RightView::Sent;
        window.leftTree = bMessages ? LeftTree::Messages : LeftTree::Stations;
    }
    window.Changed.Raise();
}

void mnuViewToolbar_Click(MainWindow& main)
{
    main.window.bToolBar = !main.window.bToolBar;
    main.window.Changed.Raise();
}

void mnuViewStatusBar_Click(MainWindow& main)
{
    main.window.bStatusBar = !main.window.bStatusBar;
    main.window.Changed.Raise();
}

void mnuViewFullScreen_Click(MainWindow& main)
{
    main.window.bFullScreen = !main.window.bFullScreen;
    main.window.Changed.Raise();
}

void mnuViewMap_Click(MainWindow& main)
{
    ShowMapView(main.window);
}

} // namespace ruvenmark
