#include "desktop/main_window_view.h"
#include "desktop/map/widget/map_widget.h"
#include "desktop/tree/tree_view.h"
#include "map/directions.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

std::string ManyLines(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "N" + std::to_string(i % 500) + "X>APRS:!4903.50N/07201.75W-line " + std::to_string(i) + "\r\n";
    return text;
}

TEST(MainWindowViewTest, ClosingAsksAndCancelKeepsRunning)
{
    WindowProgram program;
    program.Hear(Channel::RF, "N0CALL", 40, -90);
    program.prompts.answers = {Answer::Cancel, Answer::No};
    EXPECT_FALSE(program.window.close());
    EXPECT_TRUE(program.window.isVisible());
    EXPECT_TRUE(program.window.close());
    EXPECT_EQ(program.prompts.questions.size(), 2U);
}

// Ended from outside, an open dialog is cancelled: what it would have done must not be done to a program that has
// saved.
TEST(MainWindowViewTest, ASignalCancelsTheDialogThatIsOpen)
{
    WindowProgram program;
    program.files.texts["/log"] = ManyLines(3);
    program.prompts.files = {"/log"};
    program.main.frmImport.iFLDelay = 4;
    WhenModal([&](QDialog& /*dialog*/) { program.window.CloseUnasked(); });
    program.Action("mnuImportStations").trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !program.window.isVisible(); }));
    EXPECT_EQ(program.main.frmImport.iFLDelay, kLoadCancelled);
    EXPECT_EQ(program.main.tvStationList.Find("FL"), nullptr);
    EXPECT_NE(program.store.Get("MainWidth", ""), "");
}

TEST(MainWindowViewTest, ASignalEndsItWhileItAsksForTheMap)
{
    WindowProgram program;
    program.Hear(Channel::RF, "N0CALL", 40, -90);
    program.prompts.whileAsked = [&] { program.window.CloseUnasked(); };
    EXPECT_FALSE(program.window.close());                                      // The question counts as cancelled ...
    EXPECT_TRUE(QTest::qWaitFor([&] { return !program.window.isVisible(); })); // ... and is not asked again.
    EXPECT_EQ(program.prompts.questions.size(), 1U);
    EXPECT_NE(program.store.Get("MainWidth", ""), "");
}

TEST(MainWindowViewTest, ClosingDuringALoadAsksWhetherToStopItFirst)
{
    for (const bool bStop : {false, true}) {
        WindowProgram program;
        program.files.texts["/log"] = ManyLines(bStop ? 200000 : 500);
        program.prompts.answers = {bStop ? Answer::Yes : Answer::No, Answer::No}; // The map is not saved.
        QTimer::singleShot(0, [&] { // Events are let in for the first time behind the first line.
            program.Action("mnuFileClose").trigger();
            EXPECT_TRUE(program.window.isVisible());
            EXPECT_EQ(program.prompts.questions.size(), 1U);
        });
        program.window.LoadFile("/log");
        EXPECT_EQ(program.window.isVisible(), !bStop);
        EXPECT_EQ(program.prompts.questions.size(), bStop ? 2U : 1U);
        EXPECT_EQ(program.main.Of(Channel::FL).Stations.Count() == 500, !bStop);
    }
}

TEST(MainWindowViewTest, FirstStepsAndZoomAreOfferedOnTheMap)
{
    WindowProgram program;
    program.files.texts["/log"] = ManyLines(20);
    auto& hint = program.Find<QWidget>("mapHint");
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint.isVisible(); }));
    hint.findChildren<QAbstractButton*>().at(0)->click(); // Load a file: none is chosen.
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint.isVisible(); })) << "a cancel must not take the offer away";
    for (const int width : {560, 900}) { // On a narrow map the buttons must not lie on each other.
        program.window.resize(width, 700);
        QCoreApplication::processEvents();
        for (const auto* button : hint.findChildren<QAbstractButton*>())
            EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width()) << width;
    }
    program.Hear(Channel::RF, "N0CALL", 40, -90);
    EXPECT_FALSE(hint.isVisible());
    program.window.LoadFile("/log");
    EXPECT_TRUE(hint.isVisible());
    const TreeView& tree = program.window.StationTree();
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.isExpanded(tree.model()->index(3, 0)); }));
    for (auto* button : hint.findChildren<QAbstractButton*>())
        if (button->text() == QStringLiteral("Zoom to stations"))
            button->click();
    EXPECT_FALSE(hint.isVisible());
    Map& map = program.main.mpCtrl.RequireMap();
    EXPECT_NEAR(map.View().centre.lat, 44.7, 0.2);

    program.window.LoadFile("/log");
    EXPECT_TRUE(hint.isVisible());
    map.SetSize(map.Width() + 1, map.Height()); // No other place.
    EXPECT_TRUE(hint.isVisible());
    map.SetView({50, 10}, 8);
    EXPECT_FALSE(hint.isVisible());
}

// The list follows what is heard, keeps its station in the selection, and shows it with Enter.
TEST(MainWindowViewTest, TheStationListStandsUnderTheMap)
{
    WindowProgram program;
    program.Hear(Channel::TCP, "N5CALL", 40, -90);
    program.Action("mnuViewStations").trigger();
    auto& table = program.Find<QTableView>("lvStations");
    ASSERT_EQ(table.model()->rowCount(), 1);
    table.selectRow(0);
    for (int i = 0; i < 100; ++i)
        program.Hear(Channel::TCP, "N" + std::to_string(i) + "X", 41, -91);
    EXPECT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() == 101; }));
    EXPECT_EQ(table.currentIndex().data().toString(), QStringLiteral("N5CALL"));
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_NEAR(program.main.mpCtrl.RequireMap().View().centre.lat, 40, 1e-6);
    EXPECT_EQ(program.main.tvStationList.Selected()->Text(), "N5CALL");
    QTest::keyClicks(&program.Find<QLineEdit>("txtStationCalls"), QStringLiteral("n5c"));
    EXPECT_EQ(table.model()->rowCount(), 1);
    program.Find<QDockWidget>("dockStations").close();
    EXPECT_FALSE(program.main.window.bStationList);
    const auto* gone = program.window.findChild<QTableView*>(QStringLiteral("lvStations"));
    EXPECT_TRUE(!gone || !gone->isVisible());
}

// A list that comes back elsewhere, or in another size each time, has to be put in its place at every start.
TEST(MainWindowViewTest, TheStationListComesBackWhereItStood)
{
    const auto comesAs = [](const char* stored, bool bFloating, QSize size) { // 0: any.
        WindowProgram program;
        program.main.window.stationListPlace = stored;
        program.Action("mnuViewStations").trigger();
        const auto& dock = program.Find<QDockWidget>("dockStations");
        return QTest::qWaitFor([&] {
            return dock.isVisible() && dock.isFloating() == bFloating &&
                   (size.width() == 0 || dock.width() == size.width()) &&
                   (size.height() == 0 || dock.height() == size.height());
        });
    };
    EXPECT_TRUE(comesAs("below 260", false, {0, 260}));
    EXPECT_TRUE(comesAs("right 500", false, {500, 0}));
    EXPECT_TRUE(comesAs("floating 120 90 560 300", true, {560, 300}));
    for (const char* senseless : {"floating 99999 0 1 1", "right", "up 7"})
        EXPECT_TRUE(comesAs(senseless, false, {0, 0})) << senseless;
}

TEST(MainWindowViewTest, ADroppedFileIsLoaded)
{
    WindowProgram program;
    program.files.texts["/tmp/dropped.log"] = ManyLines(20);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/dropped.log"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&program.window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction); // As a file manager proposes it.
    QApplication::sendEvent(&program.window, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.main.Of(Channel::FL).Stations.Count() == 20; }));

    QMimeData link;
    link.setUrls({QUrl(QStringLiteral("https://example.org/x"))});
    QDragEnterEvent other(QPoint(10, 10), Qt::CopyAction, &link, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&program.window, &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST(MainWindowViewTest, MarkerAndTreeAreLinkedBothWaysAndTheMarkerIsDeleted)
{
    WindowProgram program;
    program.Hear(Channel::FL, "N0CALL", 40, -90);
    program.Hear(Channel::FL, "N1CALL", 40, -91);
    Map& map = program.main.mpCtrl.RequireMap();
    map.SetView({40, -90}, 8);
    QCoreApplication::processEvents();
    MapWidget& view = program.window.Map();
    view.repaint();
    KeyedTree& tree = program.main.tvStationList;
    TreeNode* node = tree.Find("FLPositionsN0CALL");
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.rect().center());
    EXPECT_EQ(tree.Selected(), node);
    tree.Select(tree.Find("FLPositionsN1CALL"));
    EXPECT_EQ(program.main.map.Selection, MapSelection(*map.FindPushpin("N1CALL(f)")));

    QTest::mouseClick(&view, Qt::RightButton, {}, view.rect().center());
    EXPECT_EQ(tree.Selected(), node);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << "the menu of the station";
    EXPECT_EQ(menu->actions().front()->text(), QStringLiteral("View Position"));
    menu->close();

    auto& button = program.Action("tbmnuEditDelete");
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.isEnabled(); }));
    button.trigger();
    EXPECT_FALSE(map.FindPushpin("N0CALL(f)"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !button.isEnabled(); }));
}

TEST(MainWindowViewTest, EscapeEndsAPinpointAndTheBoxOfThePlaceChangesItsForm)
{
    WindowProgram program;
    program.window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program.window));
    program.Action("mnuDirections").trigger();
    program.Find<QAbstractButton>("PickFrom").click();
    EXPECT_EQ(program.main.mpCtrl.MousePointer(), kPointerCross);
    QTest::keyClick(program.window.focusWidget(), Qt::Key_Escape);
    EXPECT_NE(program.main.mpCtrl.MousePointer(), kPointerCross);
    EXPECT_EQ(program.main.sbStatusBar.Prompt(), "");

    QTest::mouseClick(&program.Find<QLineEdit>("txtTbCoordinates"), Qt::LeftButton);
    EXPECT_EQ(program.main.map.coordinates, CoordinateForm::Minutes);
}

TEST(MainWindowViewTest, ATileFileThatCannotBeUsedIsToldAndCounted)
{
    WindowProgram program;
    program.prompts.files = {"/no/such.mbtiles"};
    program.Action("mnuTileFile").trigger();
    MapTiles& tiles = program.window.Map().Tiles();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tiles.Problem().isEmpty(); }));
    EXPECT_EQ(program.main.abandoned.Count(), 1U);
    program.Action("mnuTileFile").trigger(); // Puts it away.
    EXPECT_EQ(tiles.Problem(), "");
}

TEST(MainWindowViewTest, HelpAndOperatorInfoShowInTheRightPane)
{
    WindowProgram program;
    auto& page = program.Find<QTextBrowser>("webCtrl");
    program.Action("mnuRuvenmarkHelp").trigger();
    EXPECT_TRUE(page.isVisible());
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("Ruvenmark")));
    QKeyEvent copy(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    copy.ignore();
    QCoreApplication::sendEvent(&page, &copy);
    EXPECT_TRUE(copy.isAccepted()) << "the menu's entry of that key is the map's";
    program.Hear(Channel::TCP, "N0CALL-9", 40, -90);
    program.main.tvStationList.Select(program.main.tvStationList.Find("TCPPositionsN0CALL-9"));
    RunMenuEntry(program.main, MenuEntry::mnuInfo);
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("/detail/N0CALL")));
    ASSERT_EQ(program.desktop.pages.size(), 1U);
    emit page.anchorClicked(QUrl(QString::fromStdString(program.desktop.pages[0])));
    EXPECT_EQ(program.desktop.pages.size(), 2U);
    emit page.anchorClicked(QUrl(QStringLiteral("file:///etc/passwd")));
    EXPECT_EQ(program.desktop.pages.size(), 2U);
    program.Action("mnuViewMap").trigger();
    EXPECT_TRUE(program.window.Map().isVisible());
}

TEST(MainWindowViewTest, TheDirectionsPaneMeasuresBetweenAStationAndAPoint)
{
    WindowProgram program;
    program.Hear(Channel::TCP, "N0CALL", 40, -90);
    program.Action("mnuDirections").trigger();
    auto& from = program.Find<QLineEdit>("txtDirectionsFrom");
    auto& to = program.Find<QLineEdit>("txtDirectionsTo");
    QTest::keyClicks(&from, QStringLiteral("n0call\r"));
    QTest::keyClicks(&to, QStringLiteral("nowhere\r"));
    EXPECT_TRUE(program.Find<QLabel>("lblDirections").text().contains(QStringLiteral("nowhere")));
    EXPECT_EQ(to.text(), QStringLiteral("nowhere"));
    from.selectAll();
    QTest::keyClicks(&from, QStringLiteral("nobody\r"));
    const QString bad = program.Find<QLabel>("lblDirections").text();
    EXPECT_TRUE(bad.contains(QStringLiteral("nobody")) && bad.contains(QStringLiteral("nowhere"))) << "each is told";
    from.selectAll();
    QTest::keyClicks(&from, QStringLiteral("n0call\r"));
    to.selectAll();
    QTest::keyClicks(&to, QStringLiteral("41, -90\r"));
    EXPECT_TRUE(program.Find<QLabel>("lblDirections").text().contains(QStringLiteral("69.")));
    program.Find<QAbstractButton>("CopyDirections").click();
    EXPECT_NE(program.desktop.clipboard.find("N0CALL"), std::string::npos);
    program.Find<QAbstractButton>("CloseDirections").click();
    EXPECT_FALSE(from.isVisible());
}

TEST(MainWindowViewTest, TheLocationBarGoesWhereItIsTold)
{
    WindowProgram program;
    program.Action("mnuLocationScaleToolbar").trigger();
    auto& centre = program.Find<QLineEdit>("txtCentre");
    centre.selectAll();
    QTest::keyClicks(&centre, QStringLiteral("48.5, 9.25\r"));
    EXPECT_NEAR(program.main.mpCtrl.RequireMap().View().centre.lat, 48.5, 1e-9);
    centre.selectAll();
    QTest::keyClicks(&centre, QStringLiteral("somewhere\r"));
    EXPECT_EQ(centre.text(), QStringLiteral("somewhere"));
    EXPECT_NEAR(program.main.mpCtrl.RequireMap().View().centre.lat, 48.5, 1e-9);
}

// Everything happens behind the first line: the time of the second one never comes, as the clock stands still.
TEST(MainWindowViewTest, ThePlayerPausesJumpsAndStops)
{
    WindowProgram program;
    for (int i = 0; i < 10; ++i)
        program.files.texts["/day.txt"] += "10:0" + std::to_string(i) + ":00 " + ManyLines(1);
    auto& pause = program.Find<QAbstractButton>("btnPause");
    auto& bar = program.Find<QProgressBar>("pbProgress");
    auto& speed = program.Find<QComboBox>("cboReplaySpeed");
    program.main.frmImport.speed = 1;
    QTimer::singleShot(0, &program.window, [&] {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return pause.isVisible() && bar.text().contains(QLatin1String("10:00:00")); }));
        EXPECT_EQ(speed.currentText(), QStringLiteral("1x"));
        pause.click();
        EXPECT_TRUE(program.main.replay.bPaused);
        EXPECT_EQ(pause.toolTip(), QStringLiteral("Go on")); // The click itself has checked the button.
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, bar.height() / 2));
        EXPECT_NEAR(program.main.replay.jumpTo.value_or(0), 50, 1);
        speed.setCurrentIndex(0);
        emit speed.activated(0);
        EXPECT_EQ(program.main.frmImport.speed, 0);
        program.Find<QAbstractButton>("btnStop").click();
    });
    program.window.LoadFile(std::string("/day.txt"));
    EXPECT_FALSE(program.main.links.FileLoading);
    EXPECT_EQ(program.sources.Counts().decoded, 1U);
    const auto& packet = program.Find<QWidget>("txtPacket");
    program.main.sbStatusBar.ShowProgress(); // Of a walk: it has nothing to pause.
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible() && !pause.isVisible() && !packet.isVisible(); }));
    program.main.sbStatusBar.HideProgress();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bar.isVisible() && packet.isVisible(); }));
}

TEST(MainWindowViewTest, HostileNamesAreShownPlainAndBreakNoRow)
{
    WindowProgram program;
    const std::string hostile = "<img src=x>\xFF\xE2\x80\xAE&A" + std::string(200, 'W');
    program.Hear(Channel::TCP, hostile, 40, -90);
    program.main.sbStatusBar.SetPacketLine(hostile);
    program.main.window.caption = "Ruvenmark - " + hostile;
    program.main.window.Changed.Raise();
    program.window.ShowInTree(*program.main.tvStationList.Find("TCPPositions"));
    QCoreApplication::processEvents();
    EXPECT_EQ(program.window.width(), 900);
    EXPECT_FALSE(program.window.windowTitle().contains(QChar(0x202E)));
    EXPECT_LE(program.Find<QWidget>("txtPacket").height(), 40);
}

} // namespace
} // namespace ruvenmark
