#pragma once

#include "platform/event.h"

#include <QElapsedTimer>
#include <QTreeView>

#include <string>

namespace ruvenmark {

class KeyedTree;
class TreeModel;
class TreeNode;

// A KeyedTree on the screen. What is selected here is the tree's Selected(), both ways.
class TreeView final : public QTreeView {
    Q_OBJECT

public:
    TreeView(KeyedTree& tree, TreeModel& model, QWidget* parent = nullptr);

    // Jumps to the next root, folder or station that begins with what was typed, also into a collapsed folder.
    void keyboardSearch(const QString& typed) override;

signals:
    // The node, which is the selected one, or null where there is none; and where the menu belongs, on the screen.
    void MenuWanted(ruvenmark::TreeNode* node, QPoint place);
    void NodeExpanded(ruvenmark::TreeNode* node);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;

private:
    void OnToggled(const QModelIndex& index, bool bExpanded);
    void ShowSelection();
    void WriteSelection();

    KeyedTree& m_tree;
    TreeModel& m_model;
    bool m_bRemoving = false;
    std::string m_typed;
    QElapsedTimer m_sinceTyped;
    std::vector<Subscription> m_subscriptions;
};

} // namespace ruvenmark
