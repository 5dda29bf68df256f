#pragma once

#include "desktop/stations/station_list.h"

#include <QDockWidget>

#include <functional>
#include <optional>
#include <string>

class QMainWindow;

namespace ruvenmark {

// The station list in a dock under the map, beside it or in a window of its own, where it was left. The list stands
// only while it shows.
class StationDock final : public QDockWidget {
public:
    struct Actions {
        std::function<void(Channel, const std::string&)> show;
        std::function<void(Channel, const std::string&)> remove;
        std::function<void(Channel, const std::string&, QPoint)> menu;
    };

    StationDock(MainWindow& main, const IconSet& icons, Actions actions, QMainWindow& area);

    void ApplyState(); // As the logic wants it shown.

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ShowList();
    void Keep();

    MainWindow& m_main;
    const IconSet& m_icons;
    Actions m_actions;
    QMainWindow& m_area;
    StationList* m_list = nullptr;
    std::optional<StationListLook> m_look; // When it was hidden.
    bool m_bPlaced = false;                // It has been where it was left.
    bool m_bPlacing = false;               // Not by the operator.
};

} // namespace ruvenmark
