#pragma once

#include "platform/event.h"
#include "ui/station_rows.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <vector>

namespace ruvenmark {

class IconSet;

// Shows StationRows in Qt views. What reports bring is taken in 20 times a second at most; of very much at once, in
// pieces with time for the window between them.
class StationModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    // Both are lent.
    StationModel(MainWindow& main, const IconSet& icons, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    void SetFilter(const StationListFilter& filter);
    void Update(); // Takes in what is held back, or a piece of it.
    const StationRows& Rows() const { return m_rows; }

signals:
    void Counted(); // How many are listed, or how many there are, may be another number.

private:
    void OnWillChange();
    void OnChanged();

    const IconSet& m_icons;
    StationRows m_rows;
    QTimer m_updateTimer, m_timeTimer;
    QModelIndexList m_oldIndexes;
    std::vector<StationRows::Id> m_oldIds;
    std::vector<Subscription> m_subscriptions;
};

} // namespace ruvenmark
