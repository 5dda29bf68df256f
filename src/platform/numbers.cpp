#include "platform/numbers.h"

#include "platform/failure.h"
#include "platform/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace ruvenmark {

namespace {

template <typename Whole>
Whole ToWhole(double value)
{
    const double nearest = std::nearbyint(value); // The default rounding mode: halves to even.
    if (!(nearest >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
          nearest <= static_cast<double>(std::numeric_limits<Whole>::max())))
        throw Failure("the number does not fit");
    return static_cast<Whole>(nearest);
}

} // namespace

std::optional<double> ReadNumber(std::string_view text)
{
    text = Trim(text);
    const std::size_t start = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
    if (text.size() == start || !(IsDigit(text[start]) || text[start] == '.'))
        return std::nullopt;
    if (text.front() == '+')
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

double ToDouble(std::string_view text)
{
    if (const auto value = ReadNumber(text))
        return *value;
    throw Failure("the text is no number");
}

std::int16_t ToInt16(double value)
{
    return ToWhole<std::int16_t>(value);
}
std::int16_t ToInt16(std::string_view text)
{
    return ToInt16(ToDouble(text));
}
std::int32_t ToInt32(double value)
{
    return ToWhole<std::int32_t>(value);
}
std::int32_t ToInt32(std::string_view text)
{
    return ToInt32(ToDouble(text));
}

bool ToBool(std::string_view text)
{
    text = Trim(text);
    if (CompareIgnoringCase(text, "True") == 0)
        return true;
    if (CompareIgnoringCase(text, "False") == 0)
        return false;
    return ToDouble(text) != 0;
}

std::string_view BoolText(bool value)
{
    return value ? "True" : "False";
}

namespace {

constexpr double kMillion = 1e6;
constexpr int kMillionDigits = 6;
constexpr double kFifteenDigits = 1e15; // Of so many, no two numbers share a double: the number is its own shortest.

// A whole number of millionths.
void AppendMillionths(std::string& text, std::int64_t millionths)
{
    constexpr std::uint64_t kWhole = 1000000;
    std::array<char, 32> buffer;
    char* end = buffer.data();
    if (millionths < 0)
        *end++ = '-';
    const auto size = static_cast<std::uint64_t>(std::abs(millionths));
    end = std::to_chars(end, buffer.data() + buffer.size(), size / kWhole).ptr;
    if (std::uint64_t rest = size % kWhole; rest != 0) {
        int digits = kMillionDigits;
        for (; rest % 10 == 0; rest /= 10)
            --digits;
        *end = '.';
        for (int i = digits; i > 0; --i, rest /= 10)
            end[i] = static_cast<char>('0' + rest % 10);
        end += 1 + digits;
    }
    text.append(buffer.data(), end);
}

} // namespace

void AppendShortText(std::string& text, double value)
{
    const double millionths = std::nearbyint(value * kMillion);
    if (std::abs(millionths) < kFifteenDigits && millionths / kMillion == value) // Zero among them, minus zero too.
        return AppendMillionths(text, static_cast<std::int64_t>(millionths));
    std::array<char, 400> buffer; // The largest double has 309 digits before the point.
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    if (error == std::errc())
        text.append(buffer.data(), end);
}

std::string ShortText(double value)
{
    std::string text;
    AppendShortText(text, value);
    return text;
}

std::string ShortText(std::int64_t value)
{
    return std::to_string(value);
}

std::string NearestText(double value)
{
    return ShortText(std::nearbyint(value));
}

double RoundDecimals(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    return std::isfinite(scaled) ? std::nearbyint(scaled) / scale : value;
}

} // namespace ruvenmark
