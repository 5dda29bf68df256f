#pragma once

#include <QTimer>

namespace ruvenmark {

struct MainWindow;

// The program's event loop calls the timers of the logic: the beacons', the GPS panel's, that which saves boxes
// and that which notices a silent server.
class LogicTimers {
public:
    explicit LogicTimers(MainWindow& main); // Outlives them.

private:
    QTimer m_interval, m_panel, m_boxes, m_silence;
};

} // namespace ruvenmark
