#include "desktop/adapters/qt_yield.h"

#include <QCoreApplication>

namespace ruvenmark {

void QtYield::ProcessPending()
{
    constexpr qint64 kPauseMs = 30;
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < kPauseMs)
        return;
    QCoreApplication::processEvents();
    m_sinceLast.start();
}

} // namespace ruvenmark
