// Keys that a pane has to keep from the menus, whose entries of the same keys act on the map.

#include "desktop/panes/row_list_view.h"
#include "desktop/panes/row_model.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

using PaneKeysTest = WindowTest;

// The marker of another station, selected before, must not go, nor any unasked, nor the first of the list next.
TEST_F(PaneKeysTest, DelInTheStationListIsForItsRowAndAsks)
{
    Hear(Channel::TCP, "W2BBB", 40, -90);
    Hear(Channel::TCP, "W3CCC", 41, -90);
    Hear(Channel::TCP, "W4DDD", 42, -90);
    Action("mnuViewStations").trigger();
    auto& table = Find<QTableView>("lvStations");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    table.setFocus();
    table.selectRow(0);
    QTest::keyClick(&table, Qt::Key_Return); // Selects its marker.
    table.selectRow(1);
    Map& map = main.mpCtrl.RequireMap();
    prompts.answers = {Answer::No, Answer::Yes};
    for (const char* key : {"Del", "Ctrl+X", "Del"})
        QTest::keySequence(&table, QKeySequence(QString::fromLatin1(key)));
    EXPECT_EQ(prompts.questions, std::vector<std::string>(2, "Are you sure you want to delete report for W3CCC?"));
    EXPECT_FALSE(main.Of(Channel::TCP).Stations.Contains("W3CCC"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return table.model()->rowCount() == 2; }));
    EXPECT_EQ(table.currentIndex().siblingAtColumn(0).data().toString(), QStringLiteral("W4DDD"));
    Hear(Channel::TCP, "W3CCC", 41, -90);
    table.selectRow(0);
    QTest::keyClick(&table, Qt::Key_Return);
    for (const char* name : {"cboHeardWithin", "chkHeardDirectly"}) {
        auto& box = Find<QWidget>(name);
        box.setFocus();
        for (const char* key : {"Del", "Ctrl+X"})
            QTest::keySequence(&box, QKeySequence(QString::fromLatin1(key)));
    }
    EXPECT_TRUE(map.FindPushpin("W2BBB(t)"));
    EXPECT_EQ(prompts.questions.size(), 2U);
}

TEST_F(PaneKeysTest, TheStationListIsArrangedAsItWasHidden)
{
    Hear(Channel::TCP, "W2BBB", 40, -90);
    Action("mnuViewStations").trigger();
    Find<QLineEdit>("txtStationCalls").setText(QStringLiteral("w2"));
    Find<QComboBox>("cboHeardWithin").setCurrentIndex(2);
    auto* header = Find<QTableView>("lvStations").horizontalHeader();
    header->resizeSection(1, 177);
    header->setSortIndicator(3, Qt::DescendingOrder);
    Action("mnuViewStations").trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Action("mnuViewStations").trigger();
    EXPECT_EQ(Find<QLineEdit>("txtStationCalls").text(), QStringLiteral("w2"));
    EXPECT_EQ(Find<QComboBox>("cboHeardWithin").currentIndex(), 2);
    header = Find<QTableView>("lvStations").horizontalHeader();
    EXPECT_EQ(header->sectionSize(1), 177);
    EXPECT_EQ(header->sortIndicatorSection(), 3);
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(PaneKeysTest, CopyTakesTheSelectedMessagesWhole)
{
    RowList list;
    for (const char* call : {"N1X", "N2X", "N3X"})
        list.Add({call, "N0CALL", "", "", "hello", ""}, false);
    RowModel model(list, icons, {"From", "To", "Via", "Date", "Text", "Number"});
    RowListView view(list, model);
    list.Select(0, true);
    list.Select(2, true);
    QTest::keySequence(&view, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("N1X\tN0CALL\t\t\thello\t\nN3X\tN0CALL\t\t\thello\t"));
}

TEST_F(PaneKeysTest, FindInTheManualStaysThere)
{
    Action("mnuRuvenmarkHelp").trigger();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto& page = Find<QTextBrowser>("webCtrl");
    page.setFocus();
    QTest::keySequence(&page, QKeySequence::Find);
    auto& find = Find<QLineEdit>("txtFindInPage");
    ASSERT_TRUE(find.isVisible());
    EXPECT_TRUE(page.isVisible());
    QTest::keyClicks(&find, QStringLiteral("marker"));
    const int first = page.textCursor().selectionStart();
    EXPECT_EQ(page.textCursor().selectedText().toLower(), QStringLiteral("marker"));
    QTest::keyClick(&find, Qt::Key_F3);
    EXPECT_GT(page.textCursor().selectionStart(), first);
    QTest::keyClick(&find, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page.textCursor().selectionStart(), first);
    auto& place = *page.verticalScrollBar();
    place.setValue(place.maximum());
    QTest::keySequence(&find, QKeySequence::Find);
    find.setText(QStringLiteral("qqq"));
    QTest::keyClick(&find, Qt::Key_F3);
    EXPECT_EQ(place.value(), place.maximum()) << "what is read stays when there is nothing to find";
    QTest::keyClick(&find, Qt::Key_Escape);
    EXPECT_FALSE(find.isVisible());
    EXPECT_TRUE(page.hasFocus());
}

} // namespace
} // namespace ruvenmark
