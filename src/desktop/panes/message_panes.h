#pragma once

#include "ui/menus.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

class QPoint;
class QStackedWidget;
class QWidget;

namespace ruvenmark {

class IconSet;
class RowList;
class RowListView;
class TreeModel;
class TreeNode;
class TreeView;
enum class RightView : std::uint8_t;

// The messages in the window: the box tree in the left pane and the two lists in the right one.
class MessagePanes final : public QObject {
public:
    struct Callbacks {
        std::function<void(MenuEntry)> run;
        std::function<void(QPoint place, const std::vector<MenuItem>& items)> popUp;
    };

    // The widgets become pages of the two stacks.
    MessagePanes(MainWindow& main, const IconSet& icons, Callbacks callbacks, QStackedWidget& left,
                 QStackedWidget& right);

    QWidget* Boxes() const;
    QWidget* List(RightView view) const; // Null for a view of something else.

private:
    RowListView* MakeList(RowList& list, const char* name, const QString& label, const QStringList& titles,
                          QStackedWidget& right);
    void ConnectBoxes();
    void ShowBoxMenu(TreeNode* node, QPoint place);

    MainWindow& m_main;
    const IconSet& m_icons;
    Callbacks m_callbacks;
    TreeModel* m_boxModel;
    TreeView* m_boxes;
    RowListView *m_inbox, *m_sent;
};

} // namespace ruvenmark
