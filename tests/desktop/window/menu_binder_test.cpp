#include "desktop/menu_binder.h"
#include "desktop/tree/tree_view.h"
#include "window_program.h"

namespace ruvenmark {
namespace {

using MenuBinderTest = WindowTest;

std::vector<MenuEntry> EntriesOf(const MainWindow& main, Menu menu)
{
    std::vector<MenuEntry> entries;
    for (const MenuItem& item : MenuItems(main, menu)) {
        if (item.submenu != Menu::None) {
            const auto inner = EntriesOf(main, item.submenu);
            entries.insert(entries.end(), inner.begin(), inner.end());
        } else if (!item.IsLine()) {
            entries.push_back(item.entry);
        }
    }
    return entries;
}

TEST_F(MenuBinderTest, EveryEntryOfTheMenuBarRunsItsCommand)
{
    std::vector<MenuEntry> run;
    QMenuBar bar;
    MenuBinder binder(main, icons, [&](MenuEntry entry) { run.push_back(entry); });
    binder.Fill(bar);
    std::size_t count = 0;
    for (const Menu menu : MenuBar()) {
        for (const MenuEntry entry : EntriesOf(main, menu)) {
            auto* action = bar.findChild<QAction*>(QString::fromStdString(std::string(Info(entry).name)));
            ASSERT_NE(action, nullptr) << Info(entry).name;
            action->trigger();
            ASSERT_EQ(run.size(), ++count) << Info(entry).name;
            EXPECT_EQ(run.back(), entry);
            EXPECT_EQ(action->shortcut().toString(QKeySequence::PortableText).toStdString(), Info(entry).shortcut);
        }
    }
    EXPECT_GT(count, 40U);
}

TEST_F(MenuBinderTest, StatesAreThoseOfTheMomentAtWhichAMenuOpens)
{
    const auto menus = window.menuBar()->actions();
    QMenu* file = menus.at(0)->menu();
    QMenu* edit = menus.at(1)->menu();
    ASSERT_TRUE(file && edit);
    QAction& load = Action("mnuImportStations");
    main.links.FileLoading = true;
    emit file->aboutToShow();
    EXPECT_EQ(load.text(), QStringLiteral("Stop File Loa&ding"));
    main.links.FileLoading = false;
    emit file->aboutToShow();
    EXPECT_EQ(load.text(), QStringLiteral("Loa&d Stations..."));

    // What was greyed when the menu was open must not keep its shortcut from working later.
    QAction& del = Action("mnuEditDelete");
    emit edit->aboutToShow();
    EXPECT_FALSE(del.isEnabled());
    emit edit->aboutToHide();
    EXPECT_TRUE(del.isEnabled());
}

TEST_F(MenuBinderTest, ThePopUpOfAStationActsOnIt)
{
    Hear(Channel::TCP, "N0CALL-9", 40, -90);
    TreeNode* station = main.tvStationList.Find("TCPPositionsN0CALL-9");
    ASSERT_NE(station, nullptr);
    main.tvStationList.Select(station);
    emit window.StationTree().MenuWanted(station, QPoint(50, 50));
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    auto* start = popup->findChild<QAction*>(QStringLiteral("mnuStartTrack"));
    ASSERT_NE(start, nullptr);
    EXPECT_TRUE(start->isEnabled());
    EXPECT_FALSE(popup->findChild<QAction*>(QStringLiteral("mnuStopTrack"))->isEnabled());
    start->trigger();
    EXPECT_TRUE(main.Of(Channel::TCP).Tracked.Contains("N0CALL-9"));
    popup->close();
}

} // namespace
} // namespace ruvenmark
