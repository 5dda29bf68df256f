#pragma once

#include "platform/event.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <QTimer>

#include <vector>

namespace ruvenmark {

class IconSet;
class RowList;

// Shows a RowList in Qt views. Rows that are added are told in batches, 20 times a second at most; all else is told at
// once.
class RowModel final : public QAbstractTableModel {
public:
    RowModel(RowList& list, const IconSet& icons, QStringList titles, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void Flush(); // Tells what is held back.

private:
    void OnRemoved(std::size_t first, std::size_t last);

    RowList& m_list;
    const IconSet& m_icons;
    QStringList m_titles; // One a column.
    int m_told;           // Rows that the views know.
    QTimer m_flushTimer;
    std::vector<Subscription> m_subscriptions;
};

} // namespace ruvenmark
