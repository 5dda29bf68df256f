#include "aprs/plain_position.h"

#include "aprs/digit_block.h"
#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr int kMaxBlanks = 4;
constexpr int kHundredthsPerDegree = 6000;
constexpr std::array<int, 5> kHalfBox = {0, 5, 50, 500, 3000}; // By the number of blanks.

// The four digits of "MM.hh" with `blanks` of them (from the right) taken as 0; -1 where others are no digits.
int Hundredths(const char* minutes, int blanks)
{
    constexpr std::array<int, 4> kPlaces = {0, 1, 3, 4};
    int value = 0;
    for (int i = 0; i < 4; ++i) {
        const char c = minutes[kPlaces[static_cast<std::size_t>(i)]];
        if (i >= 4 - blanks) {
            if (!IsDigit(c) && c != ' ')
                return -1;
            value *= 10;
            continue;
        }
        if (!IsDigit(c))
            return -1;
        value = value * 10 + DigitValue(c);
    }
    return minutes[2] == '.' ? value : -1;
}

int CountBlanks(const char* minutes)
{
    constexpr std::array<int, 4> kFromRight = {4, 3, 1, 0};
    int blanks = 0;
    while (blanks < kMaxBlanks && minutes[kFromRight[static_cast<std::size_t>(blanks)]] == ' ')
        ++blanks;
    return blanks;
}

bool HasBlank(std::string_view text)
{
    return text.find(' ') != std::string_view::npos;
}

constexpr int Sign(char c, char positive, char negative)
{
    const char upper = ToUpper(c);
    return upper == positive ? 1 : upper == negative ? -1 : 0;
}

} // namespace

double MiddleAngle(int degrees, int hundredths, int blanks)
{
    const int total = degrees * kHundredthsPerDegree + hundredths + kHalfBox[static_cast<std::size_t>(blanks)];
    return total / static_cast<double>(kHundredthsPerDegree);
}

std::optional<double> AngleWithin(int limit, int degrees, int hundredths, int blanks)
{
    const double angle = MiddleAngle(degrees, hundredths, blanks);
    const bool bMinutes = hundredths + kHalfBox[static_cast<std::size_t>(blanks)] <= kHundredthsPerDegree;
    return bMinutes && angle <= limit ? std::optional(angle) : std::nullopt;
}

namespace {

// What hundredths of a minute are divided by on a side of the equator or of Greenwich; 0 for other letters.
template <char positive, char negative>
inline constexpr auto kScales = MakeByteTable([](char c) {
    return static_cast<double>(Sign(c, positive, negative) * kHundredthsPerDegree);
});

template <char positive, char negative>
double Scale(char c)
{
    return kScales<positive, negative>[static_cast<unsigned char>(c)];
}

// DDMM.hh or DDDMM.hh with all its digits, less than the limit in degrees, in hundredths of a minute; -1 for any other.
template <std::size_t degreeDigits, std::uint32_t limit>
int ReadAngle(const char* text)
{
    constexpr std::size_t kPoint = degreeDigits + 2;
    const DigitBlock digits = DigitBlock(text).Zeroed(kPoint);
    const std::uint32_t degrees = degreeDigits == 2 ? digits.Two(0) : digits.Three(0);
    const std::uint32_t minutes = digits.Two(degreeDigits);
    if (text[kPoint] != '.' || !digits.Begins(kPoint + 3) || degrees >= limit || minutes >= 60)
        return -1;
    return static_cast<int>(degrees * kHundredthsPerDegree + minutes * 100 + digits.Two(kPoint + 1));
}

// The usual position, with all its digits and nothing wrong. Any other is left to a closer look.
bool ParseExact(const char* text, Position& position)
{
    const int latitude = ReadAngle<2, 90>(text);
    const int longitude = ReadAngle<3, 180>(text + 9);
    const double north = Scale<'N', 'S'>(text[7]);
    const double east = Scale<'E', 'W'>(text[17]);
    if (latitude < 0 || longitude < 0 || north * east == 0 || !IsSymbolTable(text[8]) || !IsSymbolCode(text[18]))
        return false;
    position.latitude = latitude / north;
    position.longitude = longitude / east;
    position.symbol = {text[8], text[18]};
    return true;
}

// Any position, digit by digit.
[[gnu::noinline]] Refusal ParseCarefully(std::string_view text, Position& position)
{
    const char* const lat = text.data();
    const char* const lon = lat + 9;
    const auto latDegrees = ParseDigits(text.substr(0, 2));
    const auto lonDegrees = ParseDigits(text.substr(9, 3));
    const int north = Sign(lat[7], 'N', 'S');
    const int east = Sign(lon[8], 'E', 'W');
    if (!latDegrees || !lonDegrees || north == 0 || east == 0 || !IsSymbolCode(text[18]))
        return Refusal::BadPosition;
    const int blanks = CountBlanks(lat + 2);
    const int latHundredths = Hundredths(lat + 2, blanks);
    const int lonHundredths = Hundredths(lon + 3, blanks);
    if (latHundredths < 0 || lonHundredths < 0) {
        return HasBlank(text.substr(2, 5)) || HasBlank(text.substr(12, 5)) ? Refusal::BlanksMisplaced
                                                                           : Refusal::BadPosition;
    }
    const auto latitude = AngleWithin(90, *latDegrees, latHundredths, blanks);
    const auto longitude = AngleWithin(180, *lonDegrees, lonHundredths, blanks);
    if (!latitude || !longitude)
        return Refusal::PositionOutOfRange;
    if (!IsSymbolTable(text[8]))
        return Refusal::BadSymbolTable;
    position.latitude = north * *latitude;
    position.longitude = east * *longitude;
    position.symbol = {text[8], text[18]};
    position.ambiguity = static_cast<std::uint8_t>(blanks);
    return Refusal::None;
}

} // namespace

Refusal ParsePlainPosition(std::string_view text, Position& position)
{
    if (text.size() < kPlainSize)
        return Refusal::PositionTooShort;
    return ParseExact(text.data(), position) ? Refusal::None : ParseCarefully(text, position);
}

} // namespace ruvenmark::aprs
