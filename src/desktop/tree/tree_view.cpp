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
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    } else if (index.isValid()) {
        scrollTo(index);
        place = visualRect(index).center();
    }
    event->accept();
    emit MenuWanted(m_model.NodeAt(index), viewport()->mapToGlobal(place));
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
