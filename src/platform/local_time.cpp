#include "platform/local_time.h"

#include "platform/text.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <optional>

namespace ruvenmark {

namespace {

constexpr std::string_view kForm = "dddd-dd-dd dd:dd:dd"; // "d" stands for a digit.

bool HasForm(std::string_view text)
{
    if (text.size() != kForm.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (kForm[i] == 'd' ? !IsDigit(text[i]) : text[i] != kForm[i])
            return false;
    return true;
}

int NumberAt(std::string_view text, std::size_t first, std::size_t count)
{
    int number = 0;
    for (const char digit : text.substr(first, count))
        number = 10 * number + (digit - '0');
    return number;
}

} // namespace

std::int64_t SecondsOfLocalText(std::string_view text)
{
    using namespace std::chrono;
    if (!HasForm(text))
        return 0;
    const year_month_day date(year(NumberAt(text, 0, 4)), month(static_cast<unsigned>(NumberAt(text, 5, 2))),
                              day(static_cast<unsigned>(NumberAt(text, 8, 2))));
    if (!date.ok())
        return 0;
    const auto time =
        sys_days(date) + hours(NumberAt(text, 11, 2)) + minutes(NumberAt(text, 14, 2)) + seconds(NumberAt(text, 17, 2));
    return time.time_since_epoch().count();
}

std::string LocalTextOfSeconds(std::int64_t seconds)
{
    using namespace std::chrono;
    if (seconds == 0)
        return {};
    const sys_seconds moment{std::chrono::seconds(seconds)};
    const auto midnight = floor<days>(moment);
    const year_month_day date(midnight);
    const hh_mm_ss time(moment - midnight);
    std::array<char, 64> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d", int{date.year()},
                      unsigned{date.month()}, unsigned{date.day()}, static_cast<int>(time.hours().count()),
                      static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace ruvenmark
