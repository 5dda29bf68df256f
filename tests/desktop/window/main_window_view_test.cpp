#include "desktop/main_window_view.h"
#include "desktop/map/widget/map_widget.h"
#include "desktop/tree/tree_view.h"
#include "map/directions.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

using MainWindowViewTest = WindowTest;

std::string ManyLines(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "N" + std::to_string(i % 500) + "X>APRS:!4903.50N/07201.75W-line " + std::to_string(i) + "\r\n";
    return text;
}

TEST_F(MainWindowViewTest, ClosingAsksAndCancelKeepsRunning)
{
    Hear(Channel::RF, "N0CALL", 40, -90);
    prompts.answers = {Answer::Cancel, Answer::No};
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.close());
    EXPECT_EQ(prompts.questions.size(), 2U);
}

// Ended from outside, an open dialog is cancelled: what it would have done must not be done to a program that has
// saved.
TEST_F(MainWindowViewTest, ASignalCancelsTheDialogThatIsOpen)
{
    files.texts["/log"] = ManyLines(3);
    prompts.files = {"/log"};
    main.frmImport.iFLDelay = 4;
    WhenModal([&](QDialog& /*dialog*/) { window.CloseUnasked(); });
    Action("mnuImportStations").trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
    EXPECT_EQ(main.frmImport.iFLDelay, kLoadCancelled);
    EXPECT_EQ(main.tvStationList.Find("FL"), nullptr);
    EXPECT_NE(store.Get("MainWidth", ""), "");
}

TEST_F(MainWindowViewTest, ASignalEndsItWhileItAsksForTheMap)
{
    Hear(Channel::RF, "N0CALL", 40, -90);
    prompts.whileAsked = [&] { window.CloseUnasked(); };
    EXPECT_FALSE(window.close());                                      // The question counts as cancelled ...
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); })); // ... and is not asked again.
    EXPECT_EQ(prompts.questions.size(), 1U);
}

TEST_F(MainWindowViewTest, ClosingDuringALoadAsksWhetherToStopItFirst)
{
    const auto closeWhileLoading = [&](int lines, std::deque<Answer> answers) {
        files.texts["/log"] = ManyLines(lines);
        prompts.answers = std::move(answers);
        prompts.questions.clear();
        QTimer::singleShot(0, &window, [&] { // Events are let in for the first time behind the first line.
            Action("mnuFileClose").trigger();
            EXPECT_TRUE(window.isVisible());
            EXPECT_EQ(prompts.questions.size(), 1U);
        });
        window.LoadFile("/log");
    };
    closeWhileLoading(500, {Answer::No});
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(sources.Counts().decoded, 500U);
    closeWhileLoading(200000, {Answer::Yes, Answer::No}); // The map is not saved.
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(prompts.questions.size(), 2U);
    EXPECT_LT(sources.Counts().decoded, 200000U);
}

TEST_F(MainWindowViewTest, FirstStepsAndZoomAreOfferedOnTheMap)
{
    files.texts["/log"] = ManyLines(20);
    auto& hint = Find<QWidget>("mapHint");
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint.isVisible(); }));
    hint.findChildren<QAbstractButton*>().at(0)->click(); // Load a file: none is chosen.
    EXPECT_TRUE(QTest::qWaitFor([&] { return hint.isVisible(); })) << "a cancel must not take the offer away";
    for (const int width : {560, 900}) { // On a narrow map the buttons must not lie on each other.
        window.resize(width, 700);
        QCoreApplication::processEvents();
        for (const auto* button : hint.findChildren<QAbstractButton*>())
            EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width()) << width;
    }
    Hear(Channel::RF, "N0CALL", 40, -90);
    EXPECT_FALSE(hint.isVisible());
    window.LoadFile("/log");
    EXPECT_TRUE(hint.isVisible());
    const TreeView& tree = window.StationTree();
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.isExpanded(tree.model()->index(3, 0)); }));
    for (auto* button : hint.findChildren<QAbstractButton*>())
        if (button->text() == QStringLiteral("Zoom to stations"))
            button->click();
    EXPECT_FALSE(hint.isVisible());
    Map& map = main.mpCtrl.RequireMap();
    EXPECT_NEAR(map.View().centre.lat, 44.7, 0.2);

    window.LoadFile("/log");
    EXPECT_TRUE(hint.isVisible());
    map.SetSize(map.Width() + 1, map.Height()); // No other place.
    EXPECT_TRUE(hint.isVisible());
    map.SetView({50, 10}, 8);
    EXPECT_FALSE(hint.isVisible());
}

// The list follows what is heard, keeps its station in the selection, and shows it with Enter.
TEST_F(MainWindowViewTest, TheStationListStandsUnderTheMap)
{
    Hear(Channel::TCP, "N5CALL", 40, -90);
    Action("mnuViewStations").trigger();
    auto& table = Find<QTableView>("lvStations");
    ASSERT_EQ(table.model()->rowCount(), 1);
    table.selectRow(0);
    for (int i = 0; i < 100; ++i)
        Hear(Channel::TCP, "N" + std::to_string(i) + "X", 41, -91);
    EXPECT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() == 101; }));
    EXPECT_EQ(table.currentIndex().data().toString(), QStringLiteral("N5CALL"));
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_NEAR(main.mpCtrl.RequireMap().View().centre.lat, 40, 1e-6);
    EXPECT_EQ(main.tvStationList.Selected()->Text(), "N5CALL");
    QTest::keyClicks(&Find<QLineEdit>("txtStationCalls"), QStringLiteral("n5c"));
    EXPECT_EQ(table.model()->rowCount(), 1);
    Find<QDockWidget>("dockStations").close();
    EXPECT_FALSE(main.window.bStationList);
}

// A list that comes back elsewhere, or in another size each time, has to be put in its place at every start.
TEST(StationDockTest, TheStationListComesBackWhereItStood)
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
    for (const char* senseless : {"floating 99999 0 1 1", "up 7"})
        EXPECT_TRUE(comesAs(senseless, false, {0, 0})) << senseless;
}

TEST_F(MainWindowViewTest, ADroppedFileIsLoaded)
{
    files.texts["/tmp/dropped.log"] = ManyLines(20);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/dropped.log"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction); // As a file manager proposes it.
    QApplication::sendEvent(&window, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.Of(Channel::FL).Stations.Count() == 20; }));

    QMimeData link;
    link.setUrls({QUrl(QStringLiteral("https://example.org/x"))});
    QDragEnterEvent other(QPoint(10, 10), Qt::CopyAction, &link, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &other);
    EXPECT_FALSE(other.isAccepted());
}

TEST_F(MainWindowViewTest, MarkerAndTreeAreLinkedBothWaysAndTheMarkerIsDeleted)
{
    Hear(Channel::FL, "N0CALL", 40, -90);
    Hear(Channel::FL, "N1CALL", 40, -91);
    Map& map = main.mpCtrl.RequireMap();
    map.SetView({40, -90}, 8);
    QCoreApplication::processEvents();
    MapWidget& view = window.Map();
    view.repaint();
    KeyedTree& tree = main.tvStationList;
    TreeNode* node = tree.Find("FLPositionsN0CALL");
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.rect().center());
    EXPECT_EQ(tree.Selected(), node);
    tree.Select(tree.Find("FLPositionsN1CALL"));
    EXPECT_EQ(main.map.Selection, MapSelection(*map.FindPushpin("N1CALL(f)")));

    QTest::mouseClick(&view, Qt::RightButton, {}, view.rect().center());
    EXPECT_EQ(tree.Selected(), node);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << "the menu of the station";
    EXPECT_EQ(menu->actions().front()->text(), QStringLiteral("View Position"));
    menu->close();

    auto& button = Action("tbmnuEditDelete");
    EXPECT_TRUE(QTest::qWaitFor([&] { return button.isEnabled(); }));
    button.trigger();
    EXPECT_FALSE(map.FindPushpin("N0CALL(f)"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !button.isEnabled(); }));
}

TEST_F(MainWindowViewTest, EscapeEndsAPinpointAndTheBoxOfThePlaceChangesItsForm)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Action("mnuDirections").trigger();
    Find<QAbstractButton>("PickFrom").click();
    EXPECT_EQ(main.mpCtrl.MousePointer(), kPointerCross);
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_NE(main.mpCtrl.MousePointer(), kPointerCross);
    EXPECT_EQ(main.sbStatusBar.Prompt(), "");

    QTest::mouseClick(&Find<QLineEdit>("txtTbCoordinates"), Qt::LeftButton);
    EXPECT_EQ(main.map.coordinates, CoordinateForm::Minutes);
}

TEST_F(MainWindowViewTest, ATileFileThatCannotBeUsedIsToldAndCounted)
{
    prompts.files = {"/no/such.mbtiles"};
    Action("mnuTileFile").trigger();
    MapTiles& tiles = window.Map().Tiles();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !tiles.Problem().isEmpty(); }));
    EXPECT_EQ(main.abandoned.Count(), 1U);
    Action("mnuTileFile").trigger(); // Puts it away.
    EXPECT_EQ(tiles.Problem(), "");
}

TEST_F(MainWindowViewTest, HelpAndOperatorInfoShowInTheRightPane)
{
    auto& page = Find<QTextBrowser>("webCtrl");
    Action("mnuRuvenmarkHelp").trigger();
    EXPECT_TRUE(page.isVisible());
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("Ruvenmark")));
    QKeyEvent copy(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    copy.ignore();
    QCoreApplication::sendEvent(&page, &copy);
    EXPECT_TRUE(copy.isAccepted()) << "the menu's entry of that key is the map's";
    Hear(Channel::TCP, "N0CALL-9", 40, -90);
    main.tvStationList.Select(main.tvStationList.Find("TCPPositionsN0CALL-9"));
    RunMenuEntry(main, MenuEntry::mnuInfo);
    EXPECT_TRUE(page.toPlainText().contains(QStringLiteral("/detail/N0CALL")));
    ASSERT_EQ(desktop.pages.size(), 1U);
    emit page.anchorClicked(QUrl(QString::fromStdString(desktop.pages[0])));
    EXPECT_EQ(desktop.pages.size(), 2U);
    emit page.anchorClicked(QUrl(QStringLiteral("file:///etc/passwd")));
    EXPECT_EQ(desktop.pages.size(), 2U);
    Action("mnuViewMap").trigger();
    EXPECT_TRUE(window.Map().isVisible());
}

TEST_F(MainWindowViewTest, TheDirectionsPaneMeasuresBetweenAStationAndAPoint)
{
    Hear(Channel::TCP, "N0CALL", 40, -90);
    Action("mnuDirections").trigger();
    auto& from = Find<QLineEdit>("txtDirectionsFrom");
    auto& to = Find<QLineEdit>("txtDirectionsTo");
    QTest::keyClicks(&from, QStringLiteral("n0call\r"));
    QTest::keyClicks(&to, QStringLiteral("nowhere\r"));
    EXPECT_TRUE(Find<QLabel>("lblDirections").text().contains(QStringLiteral("nowhere")));
    EXPECT_EQ(to.text(), QStringLiteral("nowhere"));
    to.selectAll();
    QTest::keyClicks(&to, QStringLiteral("41, -90\r"));
    EXPECT_TRUE(Find<QLabel>("lblDirections").text().contains(QStringLiteral("69.")));
    Find<QAbstractButton>("CopyDirections").click();
    EXPECT_NE(desktop.clipboard.find("N0CALL"), std::string::npos);
    Find<QAbstractButton>("CloseDirections").click();
    EXPECT_FALSE(from.isVisible());
}

TEST_F(MainWindowViewTest, TheLocationBarGoesWhereItIsTold)
{
    Action("mnuLocationScaleToolbar").trigger();
    auto& centre = Find<QLineEdit>("txtCentre");
    centre.selectAll();
    QTest::keyClicks(&centre, QStringLiteral("48.5, 9.25\r"));
    EXPECT_NEAR(main.mpCtrl.RequireMap().View().centre.lat, 48.5, 1e-9);
    centre.selectAll();
    QTest::keyClicks(&centre, QStringLiteral("somewhere\r"));
    EXPECT_EQ(centre.text(), QStringLiteral("somewhere"));
    EXPECT_NEAR(main.mpCtrl.RequireMap().View().centre.lat, 48.5, 1e-9);
}

// Everything happens behind the first line: the time of the second one never comes, as the clock stands still.
TEST_F(MainWindowViewTest, ThePlayerPausesJumpsAndStops)
{
    for (int i = 0; i < 10; ++i)
        files.texts["/day.txt"] += "10:0" + std::to_string(i) + ":00 " + ManyLines(1);
    auto& pause = Find<QAbstractButton>("btnPause");
    auto& bar = Find<QProgressBar>("pbProgress");
    auto& speed = Find<QComboBox>("cboReplaySpeed");
    main.frmImport.speed = 1;
    QTimer::singleShot(0, &window, [&] {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return pause.isVisible() && bar.text().contains(QLatin1String("10:00:00")); }));
        EXPECT_EQ(speed.currentText(), QStringLiteral("1x"));
        pause.click();
        EXPECT_TRUE(main.replay.bPaused);
        EXPECT_EQ(pause.toolTip(), QStringLiteral("Go on")); // The click itself has checked the button.
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, bar.height() / 2));
        EXPECT_NEAR(main.replay.jumpTo.value_or(0), 50, 1);
        speed.setCurrentIndex(0);
        emit speed.activated(0);
        EXPECT_EQ(main.frmImport.speed, 0);
        Find<QAbstractButton>("btnStop").click();
    });
    window.LoadFile(std::string("/day.txt"));
    EXPECT_FALSE(main.links.FileLoading);
    EXPECT_EQ(sources.Counts().decoded, 1U);
    const auto& packet = Find<QWidget>("txtPacket");
    main.sbStatusBar.ShowProgress(); // Of a walk: it has nothing to pause.
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible() && !pause.isVisible() && !packet.isVisible(); }));
    main.sbStatusBar.HideProgress();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !bar.isVisible() && packet.isVisible(); }));
}

TEST_F(MainWindowViewTest, HostileNamesAreShownPlainAndBreakNoRow)
{
    const std::string hostile = "<img src=x>\xFF\xE2\x80\xAE&A" + std::string(200, 'W');
    Hear(Channel::TCP, hostile, 40, -90);
    main.sbStatusBar.SetPacketLine(hostile);
    main.window.caption = "Ruvenmark - " + hostile;
    main.window.Changed.Raise();
    window.ShowInTree(*main.tvStationList.Find("TCPPositions"));
    QCoreApplication::processEvents();
    EXPECT_EQ(window.width(), 900);
    EXPECT_FALSE(window.windowTitle().contains(QChar(0x202E)));
    EXPECT_LE(Find<QWidget>("txtPacket").height(), 40);
}

} // namespace
} // namespace ruvenmark
