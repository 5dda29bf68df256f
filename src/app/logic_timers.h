#pragma once

#include <QTimer>

namespace ruvenmark {

struct MainWindow;

// The program's event loop calls the two timers of the logic: the beacons' and the GPS panel's.
class LogicTimers {
public:
    explicit LogicTimers(MainWindow& main); // Outlives them.

private:
    QTimer m_interval, m_panel;
};

} // namespace ruvenmark
