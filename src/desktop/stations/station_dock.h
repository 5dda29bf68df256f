#pragma once

#include "desktop/stations/station_list.h"

#include <QDockWidget>

#include <functional>
#include <string>

namespace ruvenmark {

// The station list in a dock under the map, beside it or in a window of its own. The list stands only while it shows.
class StationDock final : public QDockWidget {
public:
    struct Actions {
        std::function<void(Channel, const std::string&)> show;
        std::function<void(Channel, const std::string&, QPoint)> menu;
    };

    StationDock(MainWindow& main, const IconSet& icons, Actions actions, QWidget* parent = nullptr);

    void ApplyState(); // As the logic wants it shown.

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    MainWindow& m_main;
    const IconSet& m_icons;
    Actions m_actions;
    StationList* m_list = nullptr;
};

} // namespace ruvenmark
