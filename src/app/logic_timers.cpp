#include "app/logic_timers.h"

#include "links/gps_panel.h"
#include "links/server_status_rules.h"
#include "messaging/message_files.h"
#include "outgoing/beacons.h"

namespace ruvenmark {

LogicTimers::LogicTimers(MainWindow& main)
{
    QObject::connect(&m_interval, &QTimer::timeout, &m_interval, [&main] { intervalTimer_Timer(main); });
    QObject::connect(&m_panel, &QTimer::timeout, &m_panel, [&main] { Timer1_Timer(main); });
    QObject::connect(&m_boxes, &QTimer::timeout, &m_boxes, [&main] { SaveChangedBoxes(main); });
    QObject::connect(&m_silence, &QTimer::timeout, &m_silence, [&main] { CheckServerSilence(main); });
    m_interval.start(kBeaconTickMs);
    m_panel.start(kGpsPanelPeriodMs);
    m_boxes.start(kBoxSavePeriodMs);
    m_silence.start(kSilenceLookPeriod);
}

} // namespace ruvenmark
