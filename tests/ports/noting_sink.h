#pragma once

#include "contracts/byte_link.h"

#include <QEventLoop>
#include <QTimer>

#include <functional>
#include <string>

namespace ruvenmark {

// Runs the event loop until something is so, for a minute at most: machines that are busy are slow.
inline bool RunUntil(const std::function<bool()>& isSo, std::chrono::milliseconds limit = std::chrono::minutes{1})
{
    QEventLoop loop;
    QTimer poll, end;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (isSo())
            loop.quit();
    });
    end.setSingleShot(true);
    QObject::connect(&end, &QTimer::timeout, &loop, &QEventLoop::quit);
    poll.start(1);
    end.start(limit);
    if (!isSo())
        loop.exec();
    return isSo();
}

inline void RunFor(std::chrono::milliseconds time)
{
    RunUntil([] { return false; }, time);
}

struct NotingSink final : IByteSink {
    void OnOpened(Moment /*now*/) override { ++opened; }
    void OnBytes(std::string_view more, Moment /*now*/) override
    {
        bytes += more;
        if (onBytes)
            onBytes();
    }
    void OnLost(Moment /*now*/) override
    {
        ++lost;
        if (onLost)
            onLost();
    }
    void OnTick(Moment /*now*/) override
    {
        ++ticks;
        if (onTick)
            onTick();
    }

    int opened = 0, lost = 0, ticks = 0;
    std::string bytes;
    std::function<void()> onBytes, onLost, onTick;
};

} // namespace ruvenmark
