#pragma once

#include "platform/event.h"

#include <QAbstractItemModel>
#include <QTimer>

#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ruvenmark {

class IconSet;
class KeyedTree;
class TreeNode;

// Shows a KeyedTree in Qt views. Rows added at the end of their parent and changed rows are told in batches, 20 times a
// second at most; all other changes of the structure are told at once. A report so costs next to nothing here.
class TreeModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    TreeModel(KeyedTree& tree, const IconSet& icons, QObject* parent = nullptr);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // Tells what is held back. Call it before asking for the index of a node that was just added.
    void Flush();
    // Null for the invalid index, which stands above the roots.
    TreeNode* NodeAt(const QModelIndex& index) const;
    QModelIndex IndexOf(const TreeNode* node) const;

private:
    void OnWillInsert(const TreeNode* parentNode, std::size_t row);
    void OnInserted(const TreeNode& node);
    void OnChanged(const TreeNode& node);
    void OnWillRemove(const TreeNode& node);
    void OnSorted(const TreeNode& parentNode);

    std::size_t ChildCount(const TreeNode* node) const;
    bool IsTold(const TreeNode* node) const;
    void Tell(const TreeNode* parentNode, std::size_t firstRow);
    void FlushLater();

    KeyedTree& m_tree;
    const IconSet& m_icons;
    QTimer m_flushTimer;
    bool m_bFlushDue = false;
    bool m_bInserting = false; // Between the two halves of an insertion that is told at once.
    std::unordered_map<const TreeNode*, std::size_t> m_toldRows; // Of parents with more rows than the views know.
    std::unordered_set<const TreeNode*> m_changedParents;        // Parents of changed rows.
    std::vector<Subscription> m_subscriptions;
};

} // namespace ruvenmark
