#pragma once

#include "contracts/byte_link.h"
#include "support/event_loop.h"

#include <functional>
#include <string>

namespace ruvenmark {

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
