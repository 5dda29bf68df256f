#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <functional>

namespace ruvenmark {

// Runs the event loop until something is so, for a minute at most: machines that are busy are slow.
inline bool RunUntil(const std::function<bool()>& isSo, std::chrono::milliseconds limit = std::chrono::minutes{1})
{
    bool bSo = isSo();
    if (bSo)
        return true;
    QEventLoop loop;
    QTimer poll;
    const QDeadlineTimer end(limit);
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        bSo = isSo();
        if (bSo || end.hasExpired())
            loop.quit();
    });
    poll.start(1);
    loop.exec();
    return bSo;
}

inline void RunFor(std::chrono::milliseconds time)
{
    RunUntil([] { return false; }, time);
}

} // namespace ruvenmark
