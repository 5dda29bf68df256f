#include "desktop/stations/station_dock.h"

#include "core/main_window.h"

#include <QCloseEvent>

#include <utility>

namespace ruvenmark {

StationDock::StationDock(MainWindow& main, const IconSet& icons, Actions actions, QWidget* parent)
    : QDockWidget(QStringLiteral("Stations"), parent), m_main(main), m_icons(icons), m_actions(std::move(actions))
{
    setObjectName(QStringLiteral("dockStations"));
    hide();
}

void StationDock::ApplyState()
{
    const bool bShow = m_main.window.bStationList;
    if (bShow == (m_list != nullptr))
        return;
    if (bShow) {
        m_list = new StationList(m_main, m_icons, this);
        connect(m_list, &StationList::ShowWanted, this, m_actions.show);
        connect(m_list, &StationList::MenuWanted, this, m_actions.menu);
        setWidget(m_list);
        show();
    } else {
        hide();
        setWidget(nullptr);
        std::exchange(m_list, nullptr)->deleteLater();
    }
}

void StationDock::closeEvent(QCloseEvent* event)
{
    QDockWidget::closeEvent(event);
    if (!event->isAccepted() || !m_main.window.bStationList)
        return;
    m_main.window.bStationList = false;
    m_main.window.Changed.Raise();
}

} // namespace ruvenmark
