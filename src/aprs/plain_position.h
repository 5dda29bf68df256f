#pragma once

#include "aprs/packet.h"
#include "aprs/text.h"

#include <string_view>

namespace ruvenmark::aprs {

inline constexpr std::size_t kPlainSize = 19;

// By tables: which of its values a byte has is as good as random, and a wrong guess costs more than the look.
inline constexpr auto kSymbolTables =
    MakeByteTable([](char c) { return c == '/' || c == '\\' || IsUpper(c) || IsDigit(c); });
inline constexpr auto kSymbolCodes = MakeByteTable([](char c) { return IsBetween(c, '!', '}') && c != '|'; });

inline bool IsSymbolTable(char c)
{
    return kSymbolTables[static_cast<unsigned char>(c)];
}
inline bool IsSymbolCode(char c)
{
    return kSymbolCodes[static_cast<unsigned char>(c)];
}

// DDMM.hhN T DDDMM.hhE C at the front of the text (protocol reference, chapters 6 and 8). Up to four digits of the
// minutes may be blank from the right; those of the latitude count for both.
Refusal ParsePlainPosition(std::string_view text, Position& position);

// An angle in degrees, from hundredths of minutes whose last `blanks` digits are not known (they are 0): the middle of
// what is left open.
double MiddleAngle(int degrees, int hundredths, int blanks);

// The same where it lies within the limit (90 or 180 degrees, itself included) and has up to 60.00 minutes: trackers
// that round write 60.00 for the next degree.
std::optional<double> AngleWithin(int limit, int degrees, int hundredths, int blanks);

} // namespace ruvenmark::aprs
