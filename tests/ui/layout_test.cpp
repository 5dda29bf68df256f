#include "support/test_program.h"
#include "ui/layout.h"
#include "ui/menus.h"
#include "ui/web_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace ruvenmark {
namespace {

bool Overlap(const LayoutRect& a, const LayoutRect& b)
{
    return a.bVisible && b.bVisible && a.left < b.left + b.width && b.left < a.left + a.width &&
           a.top < b.top + b.height && b.top < a.top + a.height;
}

bool IsInside(const LayoutRect& rect, const LayoutInput& window)
{
    return !rect.bVisible ||
           (rect.left >= 0 && rect.top >= 0 && rect.width >= 0 && rect.height >= 0 &&
            rect.left + rect.width <= window.scaleWidth && rect.top + rect.height <= window.scaleHeight);
}

void ExpectApart(const LayoutInput& window, std::int32_t x)
{
    const WindowLayout layout = SizeControls(window, x);
    const std::array rects = {layout.toolBar, layout.statusBar, layout.tree, layout.imgSplitter, layout.rightPane};
    for (std::size_t i = 0; i < rects.size(); ++i) {
        EXPECT_TRUE(window.scaleWidth < kMinWindowWidth || IsInside(rects[i], window)) << i;
        for (std::size_t other = 0; other < i; ++other)
            EXPECT_FALSE(Overlap(rects[i], rects[other])) << i << ' ' << other;
    }
}

TEST(Layout, NothingOverlapsOrIsClippedAtAnySize)
{
    for (const std::int32_t width : {0, 700, 1000, 3000, 12000, 28800})
        for (const std::int32_t height : {0, 500, 975, 9000, 16200})
            for (const std::int32_t x : {-5000, 0, 500, 2000, 11500, 99999})
                for (const unsigned bars : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U}) {
                    SCOPED_TRACE(testing::Message() << width << 'x' << height << " at " << x << " bars " << bars);
                    ExpectApart({width, height, std::min(600, height / 2), height / 4, (bars & 1U) != 0,
                                 (bars & 2U) != 0, (bars & 4U) != 0},
                                x);
                }
}

// What is hidden leaves its room to the others, and the splitter stops ahead of the edges.
TEST(Layout, WhatShowsFillsTheWindow)
{
    const auto at = [](bool bToolBar, bool bStatusBar, bool bLeftPane) {
        return SizeControls({12000, 9000, 600, 375, bToolBar, bStatusBar, bLeftPane}, 2500); // 800x600 pixels.
    };
    EXPECT_EQ(at(true, true, true).tree, (LayoutRect{0, 600, 2500, 8025}));
    EXPECT_EQ(at(true, true, false).rightPane, (LayoutRect{0, 600, 12000 - 100, 8025}));
    EXPECT_FALSE(at(true, true, false).tree.bVisible || at(true, true, false).imgSplitter.bVisible);
    EXPECT_EQ(at(false, false, true).rightPane, (LayoutRect{2540, 0, 12000 - (2500 + 140), 9000}));
    EXPECT_FALSE(at(false, false, true).toolBar.bVisible || at(false, false, true).statusBar.bVisible);
    EXPECT_EQ(ClampSplitter(499, 12000), 500);
    EXPECT_EQ(ClampSplitter(11501, 12000), 11500);
}

TEST(Layout, ANarrowWindowGrowsAndAMinimisedOneKeepsItsPlace)
{
    TestProgram program;
    KeepGeometry(program.main, 10, 20, kMinWindowWidth - 1, 8000);
    EXPECT_EQ(program.main.window.width, kMinWindowWidth);
    program.main.window.bMinimised = true;
    StopMainWindow(program.main);
    EXPECT_EQ(program.store.Get("MainLeft", "as before"), "as before");
    EXPECT_EQ(program.store.Get("WindowSplit", ""), "2000");
}

TEST(Layout, TheLeftPaneComesBackWithTheTreeOfTheRightView)
{
    TestProgram program;
    WindowState& window = program.main.window;
    mnuTreeView_Click(program.main);
    window.rightView = RightView::Sent;
    mnuTreeView_Click(program.main);
    EXPECT_TRUE(window.bLeftPane);
    EXPECT_EQ(window.leftTree, LeftTree::Messages);
    mnuViewMap_Click(program.main);
    EXPECT_EQ(window.leftTree, LeftTree::Stations);
}

TEST(Layout, HelpStaysWhereItIsWhenItIsThePageAlready)
{
    TestProgram program;
    std::string& address = program.main.window.webAddress;
    for (const auto& [before, after] : {std::pair("file:///elsewhere/Readme.htm", "file:///elsewhere/Readme.htm"),
                                        {"https://example.org/detail/N0CALL", "/program/Readme.htm"}}) {
        address = before;
        mnuRuvenmarkHelp_Click(program.main);
        EXPECT_EQ(address, after);
    }
}

} // namespace
} // namespace ruvenmark
