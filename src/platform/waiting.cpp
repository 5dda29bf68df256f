#include "platform/waiting.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace ruvenmark {

void SystemSleep::SleepMs(std::int32_t milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(std::max(milliseconds, 0)));
}

} // namespace ruvenmark
