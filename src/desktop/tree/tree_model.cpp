#include "desktop/tree/tree_model.h"

#include "desktop/icons/icon_set.h"
#include "desktop/model_color.h"
#include "desktop/shown_text.h"
#include "platform/keyed_tree.h"

#include <QBrush>
#include <QFont>

#include <chrono>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::chrono::milliseconds kFlushInterval{50};

} // namespace

TreeModel::TreeModel(KeyedTree& tree, const IconSet& icons, QObject* parent)
    : QAbstractItemModel(parent), m_tree(tree), m_icons(icons)
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(kFlushInterval);
    connect(&m_flushTimer, &QTimer::timeout, this, &TreeModel::Flush);

    m_subscriptions = {
        tree.WillInsert.Observe([this](const TreeNode* above, std::size_t row) { OnWillInsert(above, row); }),
        tree.Inserted.Observe([this](const TreeNode& node) { OnInserted(node); }),
        tree.Changed.Observe([this](const TreeNode& node) { OnChanged(node); }),
        tree.WillRemove.Observe([this](const TreeNode& node) { OnWillRemove(node); }),
        tree.Removed.Observe([this](const TreeNode*) { endRemoveRows(); }),
        tree.WillSort.Observe([this](const TreeNode& node) {
            Flush();
            emit layoutAboutToBeChanged({QPersistentModelIndex(IndexOf(&node))}, VerticalSortHint);
        }),
        tree.Sorted.Observe([this](const TreeNode& node) { OnSorted(node); }),
    };
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    const TreeNode* above = NodeAt(parent);
    const auto children = above ? above->Children() : m_tree.Roots();
    return createIndex(row, 0, children[static_cast<std::size_t>(row)]);
}

QModelIndex TreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOf(NodeAt(child)->Parent()) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const
{
    const TreeNode* node = NodeAt(parent);
    if (!m_toldRows.empty()) {
        const auto told = m_toldRows.find(node);
        if (told != m_toldRows.end())
            return static_cast<int>(told->second);
    }
    return static_cast<int>(ChildCount(node));
}

int TreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const
{
    const TreeNode* node = NodeAt(index);
    if (!node)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return ForDisplay(node->Text());
    case Qt::ToolTipRole:
        return PlainTip(ForDisplay(node->Text()));
    case Qt::DecorationRole: {
        const std::string& expanded = m_tree.ExpandedImage(*node);
        return m_icons.Tree(node->IsExpanded() && !expanded.empty() ? expanded : m_tree.Image(*node));
    }
    case Qt::FontRole: {
        if (!node->IsBold())
            return {};
        QFont font;
        font.setBold(true);
        return font;
    }
    case Qt::ForegroundRole:
        return node->Color() == 0 ? QVariant() : QVariant(QBrush(ModelColor(node->Color())));
    default:
        return {};
    }
}

void TreeModel::Flush()
{
    m_flushTimer.stop();
    m_bFlushDue = false;
    while (!m_toldRows.empty()) {
        const auto [above, firstRow] = *m_toldRows.begin();
        Tell(above, firstRow);
    }
    for (const TreeNode* above : std::exchange(m_changedParents, {})) {
        const QModelIndex parentIndex = IndexOf(above);
        emit dataChanged(index(0, 0, parentIndex), index(rowCount(parentIndex) - 1, 0, parentIndex));
    }
}

TreeNode* TreeModel::NodeAt(const QModelIndex& index) const
{
    return static_cast<TreeNode*>(index.internalPointer());
}

QModelIndex TreeModel::IndexOf(const TreeNode* node) const
{
    return node && IsTold(node) ? createIndex(static_cast<int>(m_tree.Row(*node)), 0, node) : QModelIndex();
}

void TreeModel::OnWillInsert(const TreeNode* parentNode, std::size_t row)
{
    if (row == ChildCount(parentNode) || !IsTold(parentNode))
        return;
    const auto told = m_toldRows.find(parentNode);
    if (told != m_toldRows.end())
        Tell(parentNode, told->second);
    m_bInserting = true;
    beginInsertRows(IndexOf(parentNode), static_cast<int>(row), static_cast<int>(row));
}

void TreeModel::OnInserted(const TreeNode& node)
{
    if (std::exchange(m_bInserting, false)) {
        endInsertRows();
        return;
    }
    const TreeNode* above = node.Parent();
    if (!IsTold(above))
        return; // It comes with its parent.
    m_toldRows.try_emplace(above, ChildCount(above) - 1);
    FlushLater();
}

// What stands below a collapsed node is painted by nobody and read anew when the node is expanded.
void TreeModel::OnChanged(const TreeNode& node)
{
    const TreeNode* above = node.Parent();
    if (above && !above->IsExpanded())
        return;
    m_changedParents.insert(above);
    FlushLater();
}

void TreeModel::OnWillRemove(const TreeNode& node)
{
    Flush(); // Nothing may point into what is gone.
    const int row = static_cast<int>(m_tree.Row(node));
    beginRemoveRows(IndexOf(node.Parent()), row, row);
}

void TreeModel::OnSorted(const TreeNode& parentNode)
{
    for (const QModelIndex& old : persistentIndexList()) {
        const TreeNode* node = NodeAt(old);
        if (node && node->Parent() == &parentNode)
            changePersistentIndex(old, createIndex(static_cast<int>(m_tree.Row(*node)), 0, node));
    }
    emit layoutChanged({QPersistentModelIndex(IndexOf(&parentNode))}, VerticalSortHint);
}

std::size_t TreeModel::ChildCount(const TreeNode* node) const
{
    return node ? node->Children().size() : m_tree.Roots().size();
}

bool TreeModel::IsTold(const TreeNode* node) const
{
    if (m_toldRows.empty())
        return true;
    for (; node; node = node->Parent()) {
        const auto told = m_toldRows.find(node->Parent());
        if (told != m_toldRows.end() && m_tree.Row(*node) >= told->second)
            return false;
    }
    return true;
}

void TreeModel::Tell(const TreeNode* parentNode, std::size_t firstRow)
{
    beginInsertRows(IndexOf(parentNode), static_cast<int>(firstRow), static_cast<int>(ChildCount(parentNode)) - 1);
    m_toldRows.erase(parentNode);
    endInsertRows();
}

void TreeModel::FlushLater()
{
    if (m_bFlushDue)
        return;
    m_bFlushDue = true;
    m_flushTimer.start();
}

} // namespace ruvenmark
