#include "platform/services.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <thread>

namespace ruvenmark {

std::string_view SystemClock::LocalNowText()
{
    const std::time_t now = std::time(nullptr);
    if (now != m_second) {
        m_second = now;
        std::tm local = {};
        localtime_r(&now, &local);
        std::array<char, 64> text{};
        m_text.assign(text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local));
    }
    return m_text;
}

void SystemSleep::SleepMs(std::int32_t milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(std::max(milliseconds, 0)));
}

} // namespace ruvenmark
