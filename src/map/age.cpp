#include "map/age.h"

#include "platform/numbers.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::int64_t kMinute = 60, kHour = 60 * kMinute, kDay = 24 * kHour;

std::string Count(std::int64_t count)
{
    return ShortText(count);
}

} // namespace

std::string AgeText(std::int64_t now, std::uint32_t heard)
{
    if (heard == 0)
        return {};
    const std::int64_t age = std::max<std::int64_t>(now - heard, 0); // A clock may have been put back.
    if (age < kMinute)
        return "just now";
    if (age < kHour)
        return Count(age / kMinute) + " min ago";
    if (age >= 2 * kDay)
        return Count(age / kDay) + " days ago";
    const std::int64_t minutes = age % kHour / kMinute;
    return Count(age / kHour) + " h " + (minutes > 0 ? Count(minutes) + " min " : "") + "ago";
}

bool IsFaded(std::int64_t now, std::uint32_t heard, std::int32_t minutes)
{
    return minutes > 0 && heard != 0 && now - heard > minutes * kMinute;
}

} // namespace ruvenmark
