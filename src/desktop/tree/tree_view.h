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
    void ShowWanted(); // The selected node, a station or one of its facts, on the map: Enter or a double click.
    void FocusMoved(bool bHere);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles = {}) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void rowsInserted(const QModelIndex& parent, int first, int last) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;

private:
    void OnToggled(const QModelIndex& index, bool bExpanded);
    void ShowExpanded();
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
