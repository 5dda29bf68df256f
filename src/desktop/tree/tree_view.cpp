#include "desktop/tree/tree_view.h"

#include "desktop/tree/call_search.h"
#include "desktop/tree/readable_color.h"
#include "desktop/tree/tree_model.h"
#include "platform/keyed_tree.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QStyledItemDelegate>

namespace ruvenmark {

namespace {

// Colours come from the logic, which knows nothing of themes.
class ReadableDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!index.data(Qt::ForegroundRole).isNull()) {
            const QColor base = option->palette.color(QPalette::Base);
            option->palette.setColor(QPalette::Text, ReadableColor(option->palette.color(QPalette::Text), base));
        }
    }
};

// A station or what stands below it, rather than a root or a folder.
bool IsShown(const TreeNode& node)
{
    return node.Parent() && node.Parent()->Parent();
}

} // namespace

TreeView::TreeView(KeyedTree& tree, TreeModel& model, QWidget* parent) : QTreeView(parent), m_tree(tree), m_model(model)
{
    setModel(&model);
    setItemDelegate(new ReadableDelegate(this));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideRight);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAnimated(false);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) { OnToggled(index, true); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) { OnToggled(index, false); });
    m_subscriptions = {
        tree.SelectionChanged.Observe([this] { ShowSelection(); }),
        // The view has taken its selection elsewhere by now.
        tree.Removed.Observe([this](const TreeNode*) {
            m_bRemoving = false;
            WriteSelection();
        }),
    };
}

void TreeView::keyboardSearch(const QString& typed)
{
    if (typed.isEmpty())
        return;
    if (!m_sinceTyped.isValid() || m_sinceTyped.elapsed() > QApplication::keyboardInputInterval())
        m_typed.clear();
    m_sinceTyped.start();
    // The same letter again and again goes on to the next one.
    const std::string letters = typed.toStdString();
    const bool bAgain = m_typed == letters;
    if (!bAgain)
        m_typed += letters;
    TreeNode* found = FindByFirstLetters(m_tree, m_typed, m_tree.Selected(), m_typed.size() > letters.size());
    if (!found)
        return;
    m_tree.Select(found);
}

void TreeView::contextMenuEvent(QContextMenuEvent* event)
{
    QModelIndex index = currentIndex();
    QPoint place = event->pos();
    if (event->reason() == QContextMenuEvent::Mouse) {
        index = indexAt(event->pos());
        if (index.isValid()) // Beside the nodes the selection stays.
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    } else if (index.isValid()) {
        scrollTo(index);
        place = visualRect(index).center();
    }
    event->accept();
    emit MenuWanted(m_model.NodeAt(index), viewport()->mapToGlobal(place));
}

// What the logic has opened is opened here.
void TreeView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles)
{
    QTreeView::dataChanged(topLeft, bottomRight, roles);
    ShowExpanded();
}

void TreeView::rowsInserted(const QModelIndex& parent, int first, int last)
{
    QTreeView::rowsInserted(parent, first, last);
    if (!m_model.NodeAt(parent) || !m_model.NodeAt(parent)->Parent())
        ShowExpanded();
}

void TreeView::focusInEvent(QFocusEvent* event)
{
    QTreeView::focusInEvent(event);
    emit FocusMoved(true);
}

// Neither a menu nor another window takes the keys away from the tree.
void TreeView::focusOutEvent(QFocusEvent* event)
{
    QTreeView::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason &&
        event->reason() != Qt::MenuBarFocusReason)
        emit FocusMoved(false);
}

void TreeView::keyPressEvent(QKeyEvent* event)
{
    const bool bEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const TreeNode* node = m_tree.Selected();
    if (!bEnter || !node)
        QTreeView::keyPressEvent(event);
    else if (IsShown(*node))
        emit ShowWanted();
    else
        setExpanded(currentIndex(), !isExpanded(currentIndex()));
}

void TreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const TreeNode* node = m_model.NodeAt(indexAt(event->pos()));
    if (event->button() == Qt::LeftButton && node && IsShown(*node))
        emit ShowWanted();
    else
        QTreeView::mouseDoubleClickEvent(event);
}

void TreeView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton || indexAt(event->pos()).isValid())
        QTreeView::mousePressEvent(event);
}

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (!m_bRemoving)
        WriteSelection();
}

void TreeView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    m_bRemoving = true;
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

void TreeView::OnToggled(const QModelIndex& index, bool bExpanded)
{
    TreeNode* node = m_model.NodeAt(index);
    if (!node)
        return;
    m_tree.SetExpanded(*node, bExpanded);
    if (bExpanded)
        emit NodeExpanded(node);
}

// Roots and folders: some twenty nodes.
void TreeView::ShowExpanded()
{
    const auto open = [this](const TreeNode& node) {
        const QModelIndex index = m_model.IndexOf(&node);
        if (node.IsExpanded() && index.isValid() && !isExpanded(index) && m_model.rowCount(index) > 0)
            expand(index);
    };
    for (const auto& root : m_tree.Roots()) {
        open(*root);
        for (const auto& folder : root->Children())
            open(*folder);
    }
}

void TreeView::ShowSelection()
{
    m_model.Flush();
    const QModelIndex index = m_model.IndexOf(m_tree.Selected());
    const auto chosen = selectionModel()->selectedIndexes();
    if (chosen == QModelIndexList{index} || (chosen.empty() && !index.isValid()))
        return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (index.isValid())
        scrollTo(index);
}

void TreeView::WriteSelection()
{
    const auto chosen = selectionModel()->selectedIndexes();
    m_tree.Select(chosen.empty() ? nullptr : m_model.NodeAt(chosen.front()));
}

} // namespace ruvenmark
