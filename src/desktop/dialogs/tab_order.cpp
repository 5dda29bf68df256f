#include "desktop/dialogs/tab_order.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLayout>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

using Parts = std::vector<QWidget*>;

void CollectItem(const QLayoutItem& item, Parts& parts);

// A grid's items stand in any order.
std::vector<const QLayoutItem*> ItemsOf(const QLayout& layout)
{
    std::vector<std::pair<std::pair<int, int>, const QLayoutItem*>> placed;
    const auto* grid = qobject_cast<const QGridLayout*>(&layout);
    for (int i = 0; i < layout.count(); ++i) {
        int row = i, column = 0, rows = 0, columns = 0;
        if (grid)
            grid->getItemPosition(i, &row, &column, &rows, &columns);
        placed.emplace_back(std::pair(row, column), layout.itemAt(i));
    }
    std::stable_sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<const QLayoutItem*> items;
    items.reserve(placed.size());
    for (const auto& [place, item] : placed)
        items.push_back(item);
    return items;
}

void CollectLayout(const QLayout& layout, Parts& parts)
{
    for (const QLayoutItem* item : ItemsOf(layout))
        CollectItem(*item, parts);
}

void CollectWidget(QWidget& widget, Parts& parts)
{
    if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
        parts.push_back(tabs->tabBar());
        for (int i = 0; i < tabs->count(); ++i)
            CollectWidget(*tabs->widget(i), parts);
        return;
    }
    if (widget.focusPolicy() & Qt::TabFocus)
        parts.push_back(&widget);
    if (widget.layout() && !qobject_cast<QComboBox*>(&widget) && !qobject_cast<QAbstractSpinBox*>(&widget))
        CollectLayout(*widget.layout(), parts);
}

void CollectItem(const QLayoutItem& item, Parts& parts)
{
    if (QWidget* widget = item.widget())
        CollectWidget(*widget, parts);
    else if (const QLayout* layout = const_cast<QLayoutItem&>(item).layout())
        CollectLayout(*layout, parts);
}

bool TakesEntry(const QWidget& part, const QWidget& dialog)
{
    const auto* text = qobject_cast<const QPlainTextEdit*>(&part);
    return part.isEnabled() && part.isVisibleTo(&dialog) && !qobject_cast<const QTabBar*>(&part) &&
           !(text && text->isReadOnly());
}

} // namespace

void OrderTabs(QWidget& dialog)
{
    Parts parts;
    if (dialog.layout())
        CollectLayout(*dialog.layout(), parts);
    for (std::size_t i = 1; i < parts.size(); ++i)
        QWidget::setTabOrder(parts[i - 1], parts[i]);
    if (dialog.focusWidget())
        return;
    const auto first =
        std::find_if(parts.begin(), parts.end(), [&](const QWidget* part) { return TakesEntry(*part, dialog); });
    if (first != parts.end())
        (*first)->setFocus();
}

} // namespace ruvenmark
