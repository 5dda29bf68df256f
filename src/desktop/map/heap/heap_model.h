#pragma once

#include "platform/slot_pool.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>
#include <vector>

namespace ruvenmark {

class IconSet;
class MapControl;
struct PinData;

// The rows of a heap: name with picture, and age. Read from the map when they are shown, so that a heap of a hundred
// thousand opens at once.
class HeapModel final : public QAbstractTableModel {
public:
    using Clock = std::function<std::int64_t()>; // Seconds since 1970.

    HeapModel(MapControl& control, IconSet& icons, Clock clock, QObject* parent = nullptr);

    void SetMembers(std::vector<SlotRef> members);
    void Refresh();
    const PinData* PinAt(int row) const; // Null for one that is gone.
    SlotRef RefAt(int row) const { return m_members[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    MapControl& m_control;
    IconSet& m_icons;
    Clock m_clock;
    std::vector<SlotRef> m_members;
};

} // namespace ruvenmark
