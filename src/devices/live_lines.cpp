#include "devices/live_lines.h"

#include <ctime>

namespace ruvenmark {

std::int32_t UtcOffsetNow()
{
    constexpr long kSecondsPerMinute = 60;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&now, &local) == nullptr)
        throw Failure("the local time is not known");
    return static_cast<std::int32_t>(-local.tm_gmtoff / kSecondsPerMinute);
}

} // namespace ruvenmark
