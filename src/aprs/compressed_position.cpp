#include "aprs/compressed_position.h"

#include "aprs/text.h"

#include <array>
#include <cmath>

namespace ruvenmark::aprs {

namespace {

constexpr double kLatitudeScale = 380926.0;
constexpr double kLongitudeScale = 190463.0;
constexpr int kSourceMask = 0x18;
constexpr int kSourceGga = 0x10; // Such sentences give altitude instead of course and speed.

constexpr std::array<double, 91> MakePowers(double base)
{
    std::array<double, 91> powers{};
    double value = 1.0;
    for (double& power : powers) {
        power = value;
        value *= base;
    }
    return powers;
}
constexpr std::array<double, 91> kPowers108 = MakePowers(1.08);

bool AllBase91(std::string_view text)
{
    for (const char c : text)
        if (!IsBase91(c))
            return false;
    return true;
}

int FourDigits(std::string_view text)
{
    return ((Base91Value(text[0]) * 91 + Base91Value(text[1])) * 91 + Base91Value(text[2])) * 91 + Base91Value(text[3]);
}

// c and s, whose meaning hangs on the type byte behind them.
void ParseExtension(char first, char second, char type, PositionReport& report)
{
    if (first == ' ' || second == ' ')
        return;
    const int c = Base91Value(first);
    const int s = Base91Value(second);
    if (type != ' ' && (Base91Value(type) & kSourceMask) == kSourceGga) {
        report.altitude = std::pow(1.002, c * 91 + s);
    } else if (first == '{') {
        report.range = 2.0 * kPowers108[static_cast<std::size_t>(s)];
    } else {
        report.course = c == 0 ? 360.0 : c * 4.0;
        report.speed = kPowers108[static_cast<std::size_t>(s)] - 1.0;
    }
}

bool IsOneOf(char c, char low, char high, char blank)
{
    return IsBetween(c, low, high) || c == blank;
}

} // namespace

bool StartsCompressed(char c)
{
    return c == '/' || c == '\\' || IsUpper(c) || (c >= 'a' && c <= 'j');
}

Refusal ParseCompressedPosition(std::string_view text, PositionReport& report)
{
    if (text.size() < kCompressedSize)
        return Refusal::PositionTooShort;
    const char code = text[9];
    if (!StartsCompressed(text[0]) || !AllBase91(text.substr(1, 8)) || !IsOneOf(code, '!', '{', '}') ||
        !IsOneOf(text[10], '!', '{', ' ') || !IsOneOf(text[11], '!', '{', ' ') || !IsOneOf(text[12], '!', '{', ' '))
        return Refusal::BadCompressed;
    const double latitude = 90.0 - FourDigits(text.substr(1, 4)) / kLatitudeScale;
    const double longitude = -180.0 + FourDigits(text.substr(5, 4)) / kLongitudeScale;
    if (latitude < -90.0 || longitude > 180.0)
        return Refusal::PositionOutOfRange;
    const char table = text[0] >= 'a' ? static_cast<char>(text[0] - 'a' + '0') : text[0];
    report.position.latitude = latitude;
    report.position.longitude = longitude;
    report.position.symbol = {table, code};
    report.position.form = PositionForm::Compressed;
    ParseExtension(text[10], text[11], text[12], report);
    return Refusal::None;
}

} // namespace ruvenmark::aprs
