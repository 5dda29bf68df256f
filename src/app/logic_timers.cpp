#include "app/logic_timers.h"

#include "links/gps_panel.h"
#include "outgoing/beacons.h"

namespace ruvenmark {

LogicTimers::LogicTimers(MainWindow& main)
{
    QObject::connect(&m_interval, &QTimer::timeout, &m_interval, [&main] { intervalTimer_Timer(main); });
    QObject::connect(&m_panel, &QTimer::timeout, &m_panel, [&main] { Timer1_Timer(main); });
    m_interval.start(kBeaconTickMs);
    m_panel.start(kGpsPanelPeriodMs);
}

} // namespace ruvenmark
