#include "platform/clock.h"

#include <array>
#include <ctime>

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

UtcTime SystemClock::UtcNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm utc = {};
    gmtime_r(&now, &utc);
    return {utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min};
}

std::int64_t SystemClock::UnixSeconds()
{
    return std::time(nullptr);
}

} // namespace ruvenmark
