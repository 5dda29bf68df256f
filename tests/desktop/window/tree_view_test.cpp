#include "desktop/icons/icon_set.h"
#include "desktop/readable_color.h"
#include "desktop/tree_model.h"
#include "desktop/tree_view.h"
#include "platform/keyed_tree.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

class TreeViewTest : public testing::Test {
protected:
    TreeViewTest()
    {
        TreeNode& root = tree.AddRoot("FL", "FL reports");
        folder = &tree.Add(root, "Positions", "Positions");
        for (const char* call : {"DL1ABC", "DL2XYZ", "N0CALL", "DL2ZZZ-9"})
            tree.Add(*folder, call, call);
        view.resize(300, 400);
        view.show();
        model.Flush();
    }

    std::string SelectedText() const { return tree.Selected() ? tree.Selected()->Text() : std::string(); }
    void Menu(QContextMenuEvent::Reason reason, QPoint place)
    {
        QContextMenuEvent event(reason, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
    }

    IconSet icons;
    KeyedTree tree;
    TreeNode* folder = nullptr;
    TreeModel model{tree, icons};
    TreeView view{tree, model};
};

TEST_F(TreeViewTest, TypingACallJumpsIntoACollapsedFolder)
{
    QTest::keyClicks(&view, QStringLiteral("dl2"));
    EXPECT_EQ(SelectedText(), "DL2XYZ");
    EXPECT_TRUE(view.isExpanded(model.IndexOf(folder)));
    QTest::keyClicks(&view, QStringLiteral("z"));
    EXPECT_EQ(SelectedText(), "DL2ZZZ-9");
}

TEST_F(TreeViewTest, TheSameLetterGoesRound)
{
    tree.Select(tree.Find("FLPositionsDL1ABC"));
    QTest::keyClick(&view, 'd');
    EXPECT_EQ(SelectedText(), "DL2XYZ");
    QTest::keyClick(&view, 'd');
    EXPECT_EQ(SelectedText(), "DL2ZZZ-9");
    QTest::keyClick(&view, 'd');
    EXPECT_EQ(SelectedText(), "DL1ABC");
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
    QObject::connect(&view, &TreeView::MenuWanted, [&](TreeNode* node) {
        EXPECT_EQ(node, tree.Selected());
        asked.push_back(node);
    });
    view.expandAll();
    TreeNode* station = tree.Find("FLPositionsN0CALL");
    Menu(QContextMenuEvent::Mouse, view.visualRect(model.IndexOf(station)).center());
    Menu(QContextMenuEvent::Mouse, QPoint(10, 390));
    tree.Select(folder);
    Menu(QContextMenuEvent::Keyboard, QPoint(0, 0));
    EXPECT_EQ(asked, (std::vector<TreeNode*>{station, nullptr, folder}));
}

TEST_F(TreeViewTest, TellsTheLogicOfAnExpandedNode)
{
    TreeNode* told = nullptr;
    QObject::connect(&view, &TreeView::NodeExpanded, [&](TreeNode* node) { told = node; });
    view.expand(model.IndexOf(folder->Parent()));
    EXPECT_EQ(told, folder->Parent());
    EXPECT_TRUE(told->IsExpanded());
    view.collapse(model.IndexOf(folder->Parent()));
    EXPECT_FALSE(told->IsExpanded());
}

TEST_F(TreeViewTest, HostileTextsKeepTheRowsInStep)
{
    view.expandAll();
    const int height = view.visualRect(model.IndexOf(folder)).height();
    tree.SetText(*tree.Find("FLPositionsN0CALL"), "a\nb\r\nc\n<h1>d</h1>" + std::string(300, '\xFF'));
    model.Flush();
    EXPECT_EQ(view.visualRect(model.IndexOf(tree.Find("FLPositionsN0CALL"))).height(), height);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
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

} // namespace
} // namespace ruvenmark
