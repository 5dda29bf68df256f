#include "aprs/locator.h"

#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kSquareSize = 4;
constexpr std::size_t kSubsquareSize = 6;

bool IsLetterUpTo(char c, char last)
{
    return IsBetween(ToUpper(c), 'A', last);
}

int LetterValue(char c)
{
    return ToUpper(c) - 'A';
}

} // namespace

std::size_t LocatorSize(std::string_view text)
{
    if (text.size() < kSquareSize || !IsLetterUpTo(text[0], 'R') || !IsLetterUpTo(text[1], 'R') || !IsDigit(text[2]) ||
        !IsDigit(text[3]))
        return 0;
    const bool bSubsquare = text.size() >= kSubsquareSize && IsLetterUpTo(text[4], 'X') && IsLetterUpTo(text[5], 'X');
    return bSubsquare ? kSubsquareSize : kSquareSize;
}

GridPosition LocatorPosition(std::string_view locator)
{
    double longitude = -180.0 + LetterValue(locator[0]) * 20 + DigitValue(locator[2]) * 2;
    double latitude = -90.0 + LetterValue(locator[1]) * 10 + DigitValue(locator[3]);
    if (locator.size() >= kSubsquareSize) {
        longitude += (LetterValue(locator[4]) + 0.5) / 12.0;
        latitude += (LetterValue(locator[5]) + 0.5) / 24.0;
    } else {
        longitude += 1.0;
        latitude += 0.5;
    }
    return {locator, latitude, longitude};
}

Refusal ParseGridBeacon(std::string_view text, GridBeacon& beacon)
{
    const std::size_t size = LocatorSize(text);
    if (size == 0 || size >= text.size() || text[size] != ']')
        return Refusal::BadGrid;
    beacon.grid = LocatorPosition(text.substr(0, size));
    beacon.comment = Trim(text.substr(size + 1));
    return Refusal::None;
}

} // namespace ruvenmark::aprs
