#include "ui/layout.h"
#include "window_program.h"

#include <vector>

namespace ruvenmark {
namespace {

using WindowLayoutTest = WindowTest;

TEST_F(WindowLayoutTest, NothingIsClippedOrOverlapsAtASmallSize)
{
    main.mpCtrl.SetToolbarVisible(1, true);
    main.mpCtrl.SetToolbarVisible(4, true);
    main.mpCtrl.SetItineraryVisible(true);
    window.resize(800, 600);
    QCoreApplication::processEvents();
    QWidget* all = window.centralWidget();
    std::vector<QRect> taken;
    for (const char* name : {"tbToolBar", "tvStationList", "imgSplitter", "mpCtrl", "directionsPane", "mapToolBar4"}) {
        auto& widget = Find<QWidget>(name);
        EXPECT_TRUE(widget.isVisible()) << name;
        const QRect place(widget.mapTo(all, QPoint()), widget.size());
        EXPECT_TRUE(all->rect().contains(place)) << name;
        for (const QRect& other : taken)
            EXPECT_FALSE(place.intersects(other)) << name;
        taken.push_back(place);
    }
    for (const char* name : {"tbToolBar", "mapToolBar1", "mapToolBar2", "mapToolBar3", "mapToolBar4"}) {
        auto& bar = Find<QToolBar>(name);
        EXPECT_GE(bar.width(), bar.sizeHint().width()) << name;
    }
}

TEST_F(WindowLayoutTest, TheSplitterIsDragged)
{
    auto& grip = Find<QWidget>("imgSplitter");
    auto& bar = Find<QWidget>("picSplitter");
    const int before = grip.x();
    QTest::mousePress(&grip, Qt::LeftButton, {}, QPoint(1, 50));
    QTest::mouseMove(&grip, QPoint(101, 50));
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.x(), before + 100);
    QTest::mouseRelease(&grip, Qt::LeftButton, {}, QPoint(101, 50));
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(Find<QWidget>("tvStationList").width(), before + 100);
}

TEST_F(WindowLayoutTest, TheSplitterIsMovedWithKeys)
{
    auto& grip = Find<QWidget>("imgSplitter");
    auto& tree = Find<QWidget>("tvStationList");
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Tab);
    EXPECT_TRUE(grip.hasFocus());
    EXPECT_FALSE(grip.accessibleName().isEmpty());
    EXPECT_EQ(grip.grab().toImage().pixelColor(1, 1), grip.palette().color(QPalette::Highlight));
    const int before = grip.x();
    QTest::keyClick(&grip, Qt::Key_Right);
    QTest::keyClick(&grip, Qt::Key_Right);
    QTest::keyClick(&grip, Qt::Key_Left);
    EXPECT_EQ(grip.x(), before + 16);
    QTest::keyClick(&grip, Qt::Key_Home);
    EXPECT_EQ(main.window.splitterLeft, kSplitterMargin);
    QTest::keyClick(&grip, Qt::Key_End);
    EXPECT_EQ(main.window.splitterLeft, TwipsOfPixels(window.width()) - kSplitterMargin);
}

TEST_F(WindowLayoutTest, TheLeftPaneTheBarsAndFullScreenFollowTheirCommands)
{
    auto& tree = Find<QWidget>("tvStationList");
    Action("mnuTreeView").trigger();
    EXPECT_FALSE(tree.isVisible());
    EXPECT_EQ(Find<QWidget>("mpCtrl").mapTo(&window, QPoint()).x(), 0);
    Action("mnuTreeView").trigger();
    EXPECT_TRUE(tree.isVisible());
    Action("mnuViewToolbar").trigger();
    EXPECT_FALSE(Find<QWidget>("tbToolBar").isVisible());
    Action("mnuViewFullScreen").trigger();
    EXPECT_TRUE(window.isFullScreen());
    Action("mnuViewFullScreen").trigger();
    EXPECT_FALSE(window.isFullScreen());
    Action("mnuLocationScaleToolbar").trigger();
    EXPECT_TRUE(Find<QWidget>("mapToolBar4").isVisible());
}

// The frame is drawn outside of the window: without counting it the status bar lies beyond the screen's edge.
TEST(WindowPlaceTest, FitsItsScreenWithItsFrame)
{
    const QRect screen(0, 30, 800, 570);
    const QMargins frame(4, 22, 4, 4);
    EXPECT_EQ(FittedPlace({0, 30, 800, 570}, screen, frame), QRect(4, 52, 792, 544));
    EXPECT_EQ(FittedPlace({300, 200, 600, 300}, screen, frame), QRect(196, 200, 600, 300));
    EXPECT_EQ(FittedPlace({100, 100, 600, 300}, screen, frame), QRect(100, 100, 600, 300));
    EXPECT_EQ(FittedPlace({-50, 0, 600, 300}, screen, frame), QRect(4, 52, 600, 300));
}

TEST_F(WindowLayoutTest, MaximizedComesBackAndKeepsThePlaceBelow)
{
    const std::int32_t width = main.window.width;
    window.showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.window.bMaximized; }));
    EXPECT_EQ(main.window.width, width);
    window.close();
    EXPECT_EQ(store.Get("MainMaximized", ""), "True");

    WindowProgram next(false);
    next.store.Set("MainMaximized", "True");
    StartMainWindow(next.main);
    EXPECT_TRUE(next.window.isMaximized());
}

// Told in twips. What nobody has chosen becomes a place of the program's own.
TEST(WindowPlaceTest, ComesBackWhereItWasChosen)
{
    for (const bool bChosen : {true, false}) {
        WindowProgram program(false);
        program.store.Set("MainLeft", bChosen ? "300" : "1000");
        program.store.Set("MainWidth", bChosen ? "9000" : "6500");
        program.store.Set("MainHeight", bChosen ? "7500" : "6500");
        program.store.Set("WindowSplit", "3000");
        StartMainWindow(program.main);
        EXPECT_EQ(program.window.size() == QSize(600, 500) && program.window.x() == 20, bChosen);
        EXPECT_EQ(program.window.width() > 700, !bChosen);
        EXPECT_EQ(program.Find<QWidget>("tvStationList").width(), 200);
        program.window.resize(660, 480);
        program.window.close();
        EXPECT_EQ(program.store.Get("MainWidth", ""), "9900");
        EXPECT_EQ(program.store.Get("MainHeight", ""), "7200");
    }
}

} // namespace
} // namespace ruvenmark
