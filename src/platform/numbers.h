#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers as text and back. The point is the decimal sign everywhere; the locale is never asked.
namespace ruvenmark {

// A decimal number with blanks around it allowed: sign, digits, point, exponent. Empty text, "inf", "nan" and anything
// behind the number give nothing.
std::optional<double> ReadNumber(std::string_view text);

// The checked readings below raise Failure for a text that is no number and for a value that does not fit.
// Nearest means halves to even.
double ToDouble(std::string_view text);
std::int16_t ToInt16(double value);
std::int16_t ToInt16(std::string_view text);
std::int32_t ToInt32(double value);
std::int32_t ToInt32(std::string_view text);

// "True" and "False" in any case, or a number, true unless 0. Raises Failure for anything else.
bool ToBool(std::string_view text);
// "True" or "False".
std::string_view BoolText(bool value);

// The shortest plain decimal text, with no exponent, that reads back as the same value.
std::string ShortText(double value);
void AppendShortText(std::string& text, double value);
std::string ShortText(std::int64_t value);

// The nearest whole number as text, shown whole however large it is.
std::string NearestText(double value);

// The value with at most `decimals` digits behind the point.
double RoundDecimals(double value, int decimals);

} // namespace ruvenmark
