#include "desktop/adapters/qt_yield.h"

#include <QCoreApplication>
#include <QTimer>

namespace ruvenmark {

void QtYield::ProcessPending()
{
    constexpr qint64 kPauseMs = 30;
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < kPauseMs)
        return;
    QCoreApplication::processEvents();
    m_sinceLast.start();
}

void QtYield::Wait(std::chrono::milliseconds atMost)
{
    QTimer end;
    end.setSingleShot(true);
    end.setTimerType(Qt::PreciseTimer);
    end.start(atMost);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    m_sinceLast.start();
}

} // namespace ruvenmark
