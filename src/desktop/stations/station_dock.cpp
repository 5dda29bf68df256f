#include "desktop/stations/station_dock.h"

#include "core/main_window.h"
#include "desktop/stations/dock_place.h"
#include "desktop/window_placement.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace ruvenmark {

namespace {

bool IsBeside(Qt::DockWidgetArea area)
{
    return area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
}

} // namespace

StationDock::StationDock(MainWindow& main, const IconSet& icons, Actions actions, QMainWindow& area)
    : QDockWidget(QStringLiteral("Stations"), &area), m_main(main), m_icons(icons), m_actions(std::move(actions)),
      m_area(area)
{
    setObjectName(QStringLiteral("dockStations"));
    area.addDockWidget(Qt::BottomDockWidgetArea, this);
    hide();
    connect(this, &QDockWidget::dockLocationChanged, this, &StationDock::Keep);
    connect(this, &QDockWidget::topLevelChanged, this, &StationDock::Keep);
}

void StationDock::ApplyState()
{
    const bool bShow = m_main.window.bStationList;
    if (bShow == (m_list != nullptr))
        return;
    m_bPlacing = true;
    if (bShow) {
        ShowList();
    } else {
        hide();
        m_look = m_list->Look();
        setWidget(nullptr);
        std::exchange(m_list, nullptr)->deleteLater();
    }
    m_bPlacing = false;
}

void StationDock::ShowList()
{
    m_list = new StationList(m_main, m_icons, this);
    connect(m_list, &StationList::ShowWanted, this, m_actions.show);
    connect(m_list, &StationList::DeleteWanted, this, m_actions.remove);
    connect(m_list, &StationList::MenuWanted, this, m_actions.menu);
    if (m_look)
        m_list->SetLook(*m_look);
    setWidget(m_list);
    const DockPlace place = DockPlaceOf(m_main.window.stationListPlace);
    if (!std::exchange(m_bPlaced, true)) {
        m_area.addDockWidget(place.area, this);
        // Once it is laid out.
        QTimer::singleShot(0, this, [this, size = place.size] {
            const bool bBeside = IsBeside(m_area.dockWidgetArea(this));
            if (m_list && size > 0)
                m_area.resizeDocks({this}, {size}, bBeside ? Qt::Horizontal : Qt::Vertical);
        });
        // A screen that is gone must not take it along.
        const QScreen* screen = QGuiApplication::screenAt(place.floating.center());
        if (place.floating.isValid() && screen && !HasNoPlaces()) {
            setFloating(true);
            setGeometry(FittedPlace(place.floating, screen->availableGeometry(), {}));
        }
    }
    show();
}

void StationDock::Keep()
{
    if (m_bPlacing || !m_list || !isVisible() || (isFloating() && HasNoPlaces()))
        return;
    DockPlace place;
    place.area = m_area.dockWidgetArea(this);
    place.size = IsBeside(place.area) ? width() : height();
    if (isFloating())
        place.floating = geometry();
    m_main.window.stationListPlace = TextOf(place);
}

void StationDock::moveEvent(QMoveEvent* event)
{
    QDockWidget::moveEvent(event);
    Keep();
}

void StationDock::resizeEvent(QResizeEvent* event)
{
    QDockWidget::resizeEvent(event);
    Keep();
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
