#include "aprs/weather_wind.h"

#include "aprs/digit_block.h"
#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kWindSize = 7; // ddd/sss
constexpr std::size_t kFigure = 3;
constexpr std::size_t kMaxBroken = 5; // Bytes of a figure that lost or gained some.

bool IsWindByte(char c)
{
    return IsDigit(c) || c == '.' || c == ' ' || c == '-';
}

std::size_t WindBytes(std::string_view text)
{
    std::size_t n = 0;
    while (n < text.size() && n < kMaxBroken && IsWindByte(text[n]))
        ++n;
    return n;
}

void SetDirection(std::string_view figure, Weather& weather)
{
    if (const auto direction = ParseDigits(figure); direction && figure.size() == kFigure && *direction <= 360)
        weather.windDirection = *direction;
}

void SetSpeed(std::string_view figure, Weather& weather)
{
    if (const auto speed = ParseDigits(figure); speed && figure.size() == kFigure)
        weather.windSpeed = *speed;
}

bool IsWindFigure(std::string_view text)
{
    for (const char c : text)
        if (!IsWindByte(c))
            return false;
    return true;
}

// The usual wind, "ddd/sss" with all its digits.
bool TakeExactWind(std::string_view& text, Weather& weather)
{
    const auto figures = text.size() >= kWindSize ? ReadThreeAndThree(text.data()) : std::nullopt;
    if (!figures)
        return false;
    const auto [direction, speed] = *figures;
    if (direction <= 360)
        weather.windDirection = direction;
    weather.windSpeed = speed;
    text.remove_prefix(kWindSize);
    return true;
}

} // namespace

bool TakeWind(std::string_view& text, Weather& weather)
{
    if (TakeExactWind(text, weather))
        return true;
    const bool bLetters = text.size() > kWindSize && text[0] == 'c' && text[4] == 's';
    const std::size_t at = bLetters ? 1 : 0;
    if (text.size() < kWindSize || (!bLetters && text[3] != '/') || !IsWindFigure(text.substr(at, 3)) ||
        !IsWindFigure(text.substr(at + 4, 3)))
        return false;
    SetDirection(text.substr(at, 3), weather);
    SetSpeed(text.substr(at + 4, 3), weather);
    text.remove_prefix(at + kWindSize);
    return true;
}

bool TakeBrokenWind(std::string_view& text, Weather& weather)
{
    const bool bLetters = text.starts_with('c');
    const std::string_view front = text.substr(bLetters ? 1 : 0);
    const std::string_view direction = front.substr(0, WindBytes(front));
    std::string_view rest = front.substr(direction.size());
    if (rest.starts_with(bLetters ? 's' : '/')) {
        const std::string_view speed = rest.substr(1, WindBytes(rest.substr(1)));
        rest.remove_prefix(1 + speed.size());
        SetDirection(direction, weather);
        SetSpeed(speed, weather);
    }
    if (rest.size() == text.size() || (rest.empty() && !bLetters))
        return false;
    text = rest;
    return true;
}

} // namespace ruvenmark::aprs
