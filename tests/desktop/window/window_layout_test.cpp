#include "ui/layout.h"
#include "window_program.h"

#include <vector>

namespace ruvenmark {
namespace {

TEST(WindowLayoutTest, NothingIsClippedOrOverlapsAtASmallSize)
{
    WindowProgram program;
    program.main.mpCtrl.SetToolbarVisible(1, true);
    program.main.mpCtrl.SetToolbarVisible(4, true);
    program.main.mpCtrl.SetItineraryVisible(true);
    program.window.resize(800, 600);
    QCoreApplication::processEvents();
    QWidget* all = program.window.centralWidget();
    std::vector<QRect> places;
    for (const char* name : {"tbToolBar", "tvStationList", "imgSplitter", "mpCtrl", "directionsPane", "mapToolBar4"}) {
        auto& widget = program.Find<QWidget>(name);
        EXPECT_TRUE(widget.isVisible()) << name;
        const QRect place(widget.mapTo(all, QPoint()), widget.size());
        EXPECT_TRUE(all->rect().contains(place)) << name;
        for (const QRect& other : places)
            EXPECT_FALSE(place.intersects(other)) << name;
        places.push_back(place);
    }
    for (const char* name : {"tbToolBar", "mapToolBar1", "mapToolBar2", "mapToolBar3", "mapToolBar4"}) {
        auto& bar = program.Find<QToolBar>(name);
        EXPECT_GE(bar.width(), bar.sizeHint().width()) << name;
    }
}

TEST(WindowLayoutTest, TheSplitterIsDraggedAndStopsAheadOfTheEdges)
{
    WindowProgram program;
    auto& grip = program.Find<QWidget>("imgSplitter");
    auto& bar = program.Find<QWidget>("picSplitter");
    const int before = grip.x();
    QTest::mousePress(&grip, Qt::LeftButton, {}, QPoint(1, 50));
    QTest::mouseMove(&grip, QPoint(101, 50));
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.x(), before + 100);
    QTest::mouseRelease(&grip, Qt::LeftButton, {}, QPoint(101, 50));
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(grip.x(), before + 100);
    EXPECT_EQ(program.Find<QWidget>("tvStationList").width(), before + 100);

    QTest::mousePress(&grip, Qt::LeftButton, {}, QPoint(1, 50));
    QTest::mouseRelease(&grip, Qt::LeftButton, {}, QPoint(5000, 50));
    EXPECT_EQ(program.main.window.splitterLeft, TwipsOfPixels(program.window.width()) - kSplitterMargin);
}

TEST(WindowLayoutTest, TheSplitterIsMovedWithKeys)
{
    WindowProgram program;
    auto& grip = program.Find<QWidget>("imgSplitter");
    auto& tree = program.Find<QWidget>("tvStationList");
    program.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program.window));
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
    EXPECT_EQ(tree.width(), before + 16);
    QTest::keyClick(&grip, Qt::Key_Home);
    EXPECT_EQ(program.main.window.splitterLeft, kSplitterMargin);
    QTest::keyClick(&grip, Qt::Key_End);
    EXPECT_EQ(program.main.window.splitterLeft, TwipsOfPixels(program.window.width()) - kSplitterMargin);
}

TEST(WindowLayoutTest, TheLeftPaneTheBarsAndFullScreenFollowTheirCommands)
{
    WindowProgram program;
    auto& tree = program.Find<QWidget>("tvStationList");
    program.Action("mnuTreeView").trigger();
    EXPECT_FALSE(tree.isVisible());
    EXPECT_EQ(program.Find<QWidget>("mpCtrl").mapTo(&program.window, QPoint()).x(), 0);
    program.Action("mnuTreeView").trigger();
    EXPECT_TRUE(tree.isVisible());
    program.Action("mnuViewToolbar").trigger();
    EXPECT_FALSE(program.Find<QWidget>("tbToolBar").isVisible());
    program.Action("mnuViewFullScreen").trigger();
    EXPECT_TRUE(program.window.isFullScreen());
    program.Action("mnuViewFullScreen").trigger();
    EXPECT_FALSE(program.window.isFullScreen());
    program.Action("mnuLocationScaleToolbar").trigger();
    EXPECT_TRUE(program.Find<QWidget>("mapToolBar4").isVisible());
}

// The frame is drawn outside of the window: without counting it the status bar lies beyond the screen's edge.
TEST(WindowLayoutTest, AWindowFitsItsScreenWithItsFrame)
{
    const QRect screen(0, 30, 800, 570);
    const QMargins frame(4, 22, 4, 4);
    EXPECT_EQ(FittedPlace({0, 30, 800, 570}, screen, frame), QRect(4, 52, 792, 544));
    EXPECT_EQ(FittedPlace({300, 200, 600, 300}, screen, frame), QRect(196, 200, 600, 300));
    EXPECT_EQ(FittedPlace({100, 100, 600, 300}, screen, frame), QRect(100, 100, 600, 300));
    EXPECT_EQ(FittedPlace({-50, 0, 600, 300}, screen, frame), QRect(4, 52, 600, 300));
}

TEST(WindowLayoutTest, MaximizedComesBackAndKeepsThePlaceBelow)
{
    WindowProgram program;
    const std::int32_t width = program.main.window.width;
    program.window.showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.main.window.bMaximized; }));
    EXPECT_EQ(program.main.window.width, width);
    program.window.close();
    EXPECT_EQ(program.store.Get("MainMaximized", ""), "True");

    WindowProgram next(false);
    next.store.Set("MainMaximized", "True");
    StartMainWindow(next.main);
    EXPECT_TRUE(next.window.isMaximized());
}

TEST(WindowLayoutTest, GeometryComesBack)
{
    WindowProgram program(false);
    program.store.Set("MainLeft", "300");
    program.store.Set("MainTop", "150");
    program.store.Set("MainWidth", "9000");
    program.store.Set("MainHeight", "7500");
    program.store.Set("WindowSplit", "3000");
    StartMainWindow(program.main);
    EXPECT_EQ(program.window.size(), QSize(600, 500));
    EXPECT_EQ(program.window.pos(), QPoint(20, 10));
    EXPECT_EQ(program.Find<QWidget>("tvStationList").width(), 200);
    program.window.resize(660, 480);
    program.window.close();
    EXPECT_EQ(program.store.Get("MainWidth", ""), "9900");
    EXPECT_EQ(program.store.Get("MainHeight", ""), "7200");
    EXPECT_EQ(program.store.Get("WindowSplit", ""), "3000");
}

TEST(WindowLayoutTest, TheFirstPlaceIsTheProgramsOwn)
{
    WindowProgram program(false);
    program.store.Set("MainWidth", "6500");
    program.store.Set("MainHeight", "6500");
    program.store.Set("WindowSplit", "3000");
    StartMainWindow(program.main);
    EXPECT_GT(program.window.width(), 700);
    EXPECT_EQ(program.Find<QWidget>("tvStationList").width(), 200);
}

} // namespace
} // namespace ruvenmark
