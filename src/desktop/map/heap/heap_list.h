#pragma once

#include "platform/slot_pool.h"

#include <QFrame>

#include <cstdint>
#include <functional>
#include <vector>

class QLabel;
class QTreeView;

namespace ruvenmark {

class HeapModel;
class IconSet;
class MapControl;

// All markers that one picture on the map stands for: picture, name and age of each. It stays as it was opened,
// whatever reports bring, so that each of them is reached; who is gone meanwhile says so.
class HeapList final : public QFrame {
    Q_OBJECT

public:
    using Clock = std::function<std::int64_t()>; // Seconds since 1970.

    // What is lent must outlive the list. A child of the map, hidden at first.
    HeapList(MapControl& control, IconSet& icons, Clock clock, QWidget* map);

    // Sorted by name, with the keyboard in it; on the side of the map where `at` is not.
    void Open(std::vector<SlotRef> members, QPointF at);
    void Close(); // Gives the keyboard back to the map.
    // Ages have changed, or markers are gone.
    void Refresh();
    void KeepInside(); // The map was resized.

signals:
    void Chosen(ruvenmark::SlotRef pin); // One that stands.

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Choose(int row);

    HeapModel* m_model;
    QLabel* m_title;
    QTreeView* m_rows;
    bool m_bLeft = false; // Side of the map.
};

} // namespace ruvenmark
