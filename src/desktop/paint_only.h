#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

namespace ruvenmark {

// While a connect holds everything up: the window is painted, whole now and then as what the window system asks for
// waits too, and nothing else happens.
class PaintOnly {
public:
    explicit PaintOnly(QWidget& window) : m_window(window) {}
    void operator()()
    {
        constexpr int kWholeMilliseconds = 500;
        if (!m_sinceWhole.isValid() || m_sinceWhole.hasExpired(kWholeMilliseconds)) {
            m_window.update();
            m_sinceWhole.start();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
    }

private:
    QWidget& m_window;
    QElapsedTimer m_sinceWhole;
};

} // namespace ruvenmark
