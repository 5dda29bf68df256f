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

} // namespace ruvenmark
