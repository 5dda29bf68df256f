#include "platform/line_time.h"

#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostHead = 80; // Time, port and call.
constexpr std::size_t kEpochSize = 10;

// The number of exactly so many digits at this place.
std::optional<std::int32_t> DigitsAt(std::string_view text, std::size_t at, std::size_t count)
{
    if (at + count > text.size() || (at > 0 && IsDigit(text[at - 1])))
        return std::nullopt;
    std::int32_t number = 0;
    for (const char c : text.substr(at, count)) {
        if (!IsDigit(c))
            return std::nullopt;
        number = number * 10 + (c - '0');
    }
    return number;
}

bool HasAt(std::string_view text, std::size_t at, std::string_view signs)
{
    return at < text.size() && signs.find(text[at]) != std::string_view::npos;
}

// ".102" or ",102" behind a second; more digits are dropped.
std::chrono::milliseconds Fraction(std::string_view text)
{
    if (!HasAt(text, 0, ".,"))
        return 0ms;
    std::chrono::milliseconds unit = 100ms, sum = 0ms;
    for (std::size_t i = 1; i < std::min<std::size_t>(text.size(), 4) && IsDigit(text[i]); ++i, unit /= 10)
        sum += (text[i] - '0') * unit;
    return sum;
}

// "12:07", "12:07:19", "12:07:19.102"
std::optional<std::chrono::milliseconds> Clock(std::string_view head)
{
    for (std::size_t colon = head.find(':'); colon != std::string_view::npos; colon = head.find(':', colon + 1)) {
        const auto hour = colon < 2 ? std::nullopt : DigitsAt(head, colon - 2, 2);
        const auto minute = hour ? DigitsAt(head.substr(colon + 1), 0, 2) : std::nullopt;
        if (!minute || *hour > 23 || *minute > 59)
            continue;
        std::chrono::milliseconds time = std::chrono::hours(*hour) + std::chrono::minutes(*minute);
        const auto second = HasAt(head, colon + 3, ":") ? DigitsAt(head, colon + 4, 2) : std::nullopt;
        if (second && *second <= 60)
            time += std::chrono::seconds(*second) + Fraction(head.substr(colon + 6));
        return time;
    }
    return std::nullopt;
}

// "2023-12-24", "2023/12/24"
std::optional<std::chrono::sys_days> Date(std::string_view head)
{
    for (std::size_t sign = head.find_first_of("-/"); sign != std::string_view::npos;
         sign = head.find_first_of("-/", sign + 1)) {
        const auto year = sign < 4 || !HasAt(head, sign + 3, "-/") ? std::nullopt : DigitsAt(head, sign - 4, 4);
        const auto month = year ? DigitsAt(head.substr(sign + 1), 0, 2) : std::nullopt;
        const auto day = month ? DigitsAt(head, sign + 4, 2) : std::nullopt;
        if (!day)
            continue;
        const std::chrono::year_month_day date(std::chrono::year(*year),
                                               std::chrono::month(static_cast<unsigned>(*month)),
                                               std::chrono::day(static_cast<unsigned>(*day)));
        if (date.ok())
            return std::chrono::sys_days(date);
    }
    return std::nullopt;
}

std::optional<LineTime> Epoch(std::string_view head)
{
    if (head.size() < kEpochSize || !std::all_of(head.begin(), head.begin() + kEpochSize, IsDigit) ||
        (head.size() > kEpochSize && IsDigit(head[kEpochSize])))
        return std::nullopt;
    std::int64_t seconds = 0;
    for (const char c : head.substr(0, kEpochSize))
        seconds = seconds * 10 + (c - '0');
    return LineTime{std::chrono::seconds(seconds) + Fraction(head.substr(kEpochSize)), true};
}

} // namespace

std::optional<LineTime> TimeOfLine(std::string_view line)
{
    const std::string_view start = line.substr(0, kMostHead);
    const std::size_t packet = start.substr(0, start.find('>')).find_last_of(" ]\t");
    if (packet == std::string_view::npos || start.find('>') == std::string_view::npos)
        return std::nullopt;
    const std::string_view head = start.substr(0, packet);
    if (const auto epoch = Epoch(head))
        return epoch;
    const auto clock = Clock(head);
    if (!clock)
        return std::nullopt;
    const auto date = Date(head);
    return LineTime{*clock + (date ? date->time_since_epoch() : std::chrono::days(0)), date.has_value()};
}

std::string ShownTime(const LineTime& time)
{
    const auto day = std::chrono::floor<std::chrono::days>(time.at);
    const std::chrono::hh_mm_ss clock(std::chrono::floor<std::chrono::seconds>(time.at - day));
    const std::chrono::year_month_day date{std::chrono::sys_days(day)};
    std::array<char, 40> text{};
    if (time.bDated)
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u ", static_cast<int>(date.year()),
                      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    std::string shown(text.data());
    std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", static_cast<int>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    return shown + text.data();
}

} // namespace ruvenmark
