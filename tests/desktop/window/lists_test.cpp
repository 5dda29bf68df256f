#include "desktop/icons/icon_set.h"
#include "desktop/panes/row_model.h"
#include "desktop/tree/readable_color.h"
#include "desktop/tree/tree_model.h"
#include "desktop/tree/tree_view.h"
#include "platform/keyed_tree.h"
#include "platform/row_list.h"

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <random>
#include <span>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

class TreeModelTest : public testing::Test {
protected:
    QModelIndex IndexOf(std::string_view key)
    {
        model.Flush();
        return model.IndexOf(tree.Find(key));
    }

    IconSet icons;
    KeyedTree tree;
    TreeModel model{tree, icons};
};

// What the model tells must be the tree, row for row.
void ExpectSame(const TreeModel& model, const QModelIndex& parent, std::span<TreeNode* const> nodes)
{
    ASSERT_EQ(model.rowCount(parent), static_cast<int>(nodes.size()));
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const TreeNode& node = *nodes[static_cast<std::size_t>(row)];
        ASSERT_EQ(model.NodeAt(index), &node);
        ASSERT_EQ(model.parent(index), parent);
        ASSERT_EQ(index.data().toString().toStdString(), node.Text());
        ExpectSame(model, index, node.Children());
    }
}

TEST_F(TreeModelTest, SurvivesRandomEdits)
{
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(7);
    std::vector<std::string> keys;
    const auto pick = [&]() -> TreeNode* { return keys.empty() ? nullptr : tree.Find(keys[random() % keys.size()]); };
    for (int step = 0; step < 1500; ++step) {
        TreeNode* node = pick();
        const auto what = random() % 8;
        if (what < 4) {
            const std::string word = "/" + std::to_string(step), text = std::to_string(random() % 1000);
            keys.push_back((node ? tree.Add(*node, word, text) : tree.AddRoot(word, text)).Key());
        } else if (!node) {
            continue;
        } else if (what == 4) {
            tree.SetText(*node, std::to_string(random()));
        } else if (what == 5) {
            tree.SetSorted(*node, random() % 2 == 0);
        } else if (what == 6) {
            tree.SetExpanded(*node, random() % 2 == 0);
        } else if (random() % 6 == 0) {
            tree.Remove(*node);
        }
        if (step % 97 == 0)
            model.Flush();
    }
    model.Flush();
    ExpectSame(model, {}, tree.Roots());
}

TEST_F(TreeModelTest, TellsManyNewRowsAtOnce)
{
    TreeNode& root = tree.AddRoot("FL", "FL reports");
    model.Flush();
    const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    for (int i = 0; i < 100; ++i) {
        TreeNode& station = tree.Add(root, std::to_string(i), "N" + std::to_string(i));
        tree.Add(station, "Path", "WIDE1-1");
    }
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
    model.Flush();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 100);
    EXPECT_EQ(model.rowCount(IndexOf("FL50")), 1);
}

TEST_F(TreeModelTest, TellsManyChangesOfAnExpandedNodeOnce)
{
    TreeNode& root = tree.AddRoot("FL", "FL reports");
    TreeNode& station = tree.Add(root, "A", "A");
    tree.SetExpanded(root, true);
    model.Flush();
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 100; ++i)
        tree.SetText(station, std::to_string(i));
    EXPECT_TRUE(QTest::qWaitFor([&] { return changed.count() > 0; }));
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(TreeModelTest, KeepsTheSelectedIndexThroughASort)
{
    TreeNode& root = tree.AddRoot("TCP", "TCP reports");
    for (const char* call : {"C", "A", "B"})
        tree.Add(root, call, call);
    const QPersistentModelIndex kept(IndexOf("TCPC"));
    ASSERT_EQ(kept.row(), 0);
    tree.SetSorted(root, true);
    EXPECT_EQ(kept.row(), 2);
    EXPECT_EQ(model.NodeAt(kept), tree.Find("TCPC"));
}

TEST_F(TreeModelTest, ShowsPictureBoldAndColour)
{
    TreeNode& root = tree.AddRoot("RF", "RF reports", "Closed", "Open");
    tree.SetBold(root, true);
    tree.SetColor(root, 0x0000FF);
    const QModelIndex index = IndexOf("RF");
    EXPECT_TRUE(index.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(index.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(255, 0, 0));
    const auto picture = [&] { return index.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage(); };
    const QImage closed = picture();
    tree.SetExpanded(root, true);
    EXPECT_NE(picture(), closed);
}

class TreeViewTest : public TreeModelTest {
protected:
    TreeViewTest()
    {
        for (const char* call : {"DL1ABC", "DL2XYZ", "N0CALL", "DL2ZZZ-9"})
            tree.Add(folder, call, call);
        view.resize(300, 400);
        view.show();
        model.Flush();
    }

    std::string SelectedText() const { return std::string(tree.Selected() ? tree.Selected()->Text() : ""); }
    void Menu(QContextMenuEvent::Reason reason, QPoint place)
    {
        QContextMenuEvent event(reason, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
    }

    TreeNode& folder = tree.Add(tree.AddRoot("FL", "FL reports"), "Positions", "Positions");
    TreeView view{tree, model};
};

TEST_F(TreeViewTest, TypingACallJumpsIntoACollapsedFolder)
{
    QTest::keyClicks(&view, QStringLiteral("dl2"));
    EXPECT_EQ(SelectedText(), "DL2XYZ");
    EXPECT_TRUE(view.isExpanded(model.IndexOf(&folder)));
    EXPECT_TRUE(folder.IsExpanded()) << "the logic is told";
    QTest::keyClicks(&view, QStringLiteral("z"));
    EXPECT_EQ(SelectedText(), "DL2ZZZ-9");
}

TEST_F(TreeViewTest, TheSameLetterGoesRound)
{
    for (const char* next : {"DL1ABC", "DL2XYZ", "DL2ZZZ-9", "DL1ABC"}) {
        QTest::keyClick(&view, 'd');
        EXPECT_EQ(SelectedText(), next);
    }
}

TEST_F(TreeViewTest, SelectionGoesBothWays)
{
    tree.Select(tree.Find("FLPositionsN0CALL"));
    EXPECT_EQ(view.currentIndex(), model.IndexOf(tree.Selected()));
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(SelectedText(), "DL2XYZ");
    tree.Remove(*tree.Selected());
    EXPECT_EQ(model.NodeAt(view.currentIndex()), tree.Selected());
    tree.Remove(*tree.Find("FL"));
    EXPECT_EQ(tree.Selected(), nullptr);
}

TEST_F(TreeViewTest, RightClickSelectsTheNodeUnderThePointerFirst)
{
    std::vector<TreeNode*> asked;
    QObject::connect(&view, &TreeView::MenuWanted, [&](TreeNode* node) { asked.push_back(node); });
    view.expandAll();
    TreeNode* station = tree.Find("FLPositionsN0CALL");
    Menu(QContextMenuEvent::Mouse, view.visualRect(model.IndexOf(station)).center());
    EXPECT_EQ(tree.Selected(), station);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, QPoint(10, 390));
    Menu(QContextMenuEvent::Mouse, QPoint(10, 390));
    EXPECT_EQ(tree.Selected(), station); // Beside the nodes it stays.
    tree.Select(&folder);
    Menu(QContextMenuEvent::Keyboard, QPoint(0, 0));
    EXPECT_EQ(asked, (std::vector<TreeNode*>{station, nullptr, &folder}));
}

TEST_F(TreeViewTest, EnterAndADoubleClickShowAStationAndFoldTheRest)
{
    const QSignalSpy wanted(&view, &TreeView::ShowWanted);
    view.expandAll();
    TreeNode* station = tree.Find("FLPositionsN0CALL");
    const QModelIndex index = model.IndexOf(station);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(tree.Selected(), station);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(wanted.count(), 2);
    tree.Select(&folder);
    const bool bOpen = view.isExpanded(model.IndexOf(&folder));
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(wanted.count(), 2);
    EXPECT_NE(view.isExpanded(model.IndexOf(&folder)), bOpen);
}

// A folder that the logic makes anew is as open as its forerunner was.
TEST_F(TreeViewTest, WhatTheLogicOpensIsOpened)
{
    TreeNode& root = tree.AddRoot("RF", "RF reports");
    TreeNode& made = tree.Add(root, "Positions", "Positions");
    tree.Add(made, "N1CALL", "N1CALL");
    tree.SetExpanded(root, true);
    tree.SetExpanded(made, true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.isExpanded(model.IndexOf(&made)); }));
    EXPECT_TRUE(view.isExpanded(model.IndexOf(&root)));
    EXPECT_EQ(model.index(0, 0, model.IndexOf(&made)).data(Qt::ToolTipRole).toString(),
              QStringLiteral("<span>N1CALL</span>"));
}

TEST(ReadableColorTest, KeepsTheHueAndReachesAContrastOnLightAndDark)
{
    const QColor onDark = ReadableColor(QColor(0, 0, 160), QColor(30, 30, 30));
    EXPECT_GT(onDark.lightness(), 130);
    EXPECT_NEAR(onDark.hue(), 240, 2);
    const QColor onLight = ReadableColor(QColor(255, 255, 0), Qt::white);
    EXPECT_LT(onLight.lightness(), 100);
    EXPECT_EQ(ReadableColor(QColor(255, 0, 0), QColor(10, 10, 10)), QColor(255, 0, 0));
}

// Rendered, the text of a message off the air could show anything, or have the program look for pictures.
TEST(RowModelTest, AMessageIsItsOwnTipAsPlainText)
{
    RowList list;
    list.Add({"W1AW", "N0CALL", "", "", "<h1>5 < 6</h1>", ""}, true);
    const IconSet icons;
    const RowModel model(list, icons, {"From", "To", "Via", "Date", "Text", "Number"});
    const QModelIndex text = model.index(0, 4);
    EXPECT_EQ(text.data().toString(), QStringLiteral("<h1>5 < 6</h1>"));
    EXPECT_EQ(text.data(Qt::ToolTipRole).toString(), QStringLiteral("<span>&lt;h1&gt;5 &lt; 6&lt;/h1&gt;</span>"));
}

} // namespace
} // namespace ruvenmark
