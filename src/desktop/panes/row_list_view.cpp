#include "desktop/panes/row_list_view.h"

#include "desktop/panes/copy_keys.h"
#include "desktop/panes/row_model.h"
#include "platform/row_list.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace ruvenmark {

RowListView::RowListView(RowList& list, RowModel& model, QWidget* parent)
    : QTreeView(parent), m_list(list), m_model(model)
{
    setModel(&model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, &RowListView::SortBy);
    connect(this, &QTreeView::doubleClicked, this, &RowListView::OpenWanted);
    KeepCopyKeys(*this);
    ShowSelection();
}

// The rows stand elsewhere, and the selection with them.
void RowListView::reset()
{
    QTreeView::reset();
    ShowSelection();
}

void RowListView::SetMainColumn(int column)
{
    m_mainColumn = column;
    m_leastWidth = columnWidth(column);
    header()->setStretchLastSection(false);
    connect(header(), &QHeaderView::sectionResized, this, [this](int resized) {
        if (resized != m_mainColumn)
            FitMainColumn();
    });
    FitMainColumn();
}

void RowListView::FitMainColumn()
{
    if (m_mainColumn < 0)
        return;
    const int others = header()->length() - columnWidth(m_mainColumn);
    setColumnWidth(m_mainColumn, std::max(viewport()->width() - others, m_leastWidth));
}

void RowListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    FitMainColumn();
}

void RowListView::contextMenuEvent(QContextMenuEvent* event)
{
    QPoint place = event->pos();
    if (event->reason() != QContextMenuEvent::Mouse && currentIndex().isValid()) {
        scrollTo(currentIndex());
        place = visualRect(currentIndex()).center();
    }
    event->accept();
    emit MenuWanted(viewport()->mapToGlobal(place));
}

// Del is the list's own here, not the map's.
bool RowListView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<const QKeyEvent*>(event)->matches(QKeySequence::Delete)) {
        event->accept();
        return true;
    }
    return QTreeView::event(event);
}

// Neither a menu of its own nor another window takes the operator away.
void RowListView::focusOutEvent(QFocusEvent* event)
{
    QTreeView::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason &&
        event->reason() != Qt::MenuBarFocusReason)
        emit Left();
}

void RowListView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Delete))
        emit DeleteWanted();
    else if (event->matches(QKeySequence::Copy))
        Copy();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit OpenWanted();
    else
        QTreeView::keyPressEvent(event);
}

// All that is selected, a line each.
void RowListView::Copy() const
{
    QStringList rows;
    for (int row = 0; row < m_model.rowCount(); ++row)
        if (m_list.At(static_cast<std::size_t>(row)).IsSelected())
            rows << RowText(m_model.index(row, 0));
    if (!rows.isEmpty())
        QApplication::clipboard()->setText(rows.join(QLatin1Char('\n')));
}

void RowListView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F9 && !event->isAutoRepeat())
        emit ReplyWanted();
    else
        QTreeView::keyReleaseEvent(event);
}

void RowListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    for (const auto& [ranges, bSelected] : {std::pair(&deselected, false), std::pair(&selected, true)})
        for (const QItemSelectionRange& range : *ranges)
            for (int row = range.top(); row <= range.bottom(); ++row)
                m_list.Select(static_cast<std::size_t>(row), bSelected);
}

void RowListView::SortBy(int column)
{
    m_list.ClickHeader(static_cast<std::size_t>(column));
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, m_list.IsAscending() ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void RowListView::ShowSelection()
{
    QItemSelection selection;
    for (int row = 0; row < m_model.rowCount(); ++row)
        if (m_list.At(static_cast<std::size_t>(row)).IsSelected())
            selection.append(QItemSelectionRange(m_model.index(row, 0), m_model.index(row, m_model.columnCount() - 1)));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

} // namespace ruvenmark
