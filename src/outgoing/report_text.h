#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The pieces of report texts.
namespace ruvenmark {

// Extension, altitude and comment together may be this long.
inline constexpr std::size_t kLongestTail = 43;
inline constexpr std::string_view kTailTooLong = "Comment can not be longer than 43 characters!";

// Fills up with zeros, behind a minus sign where there is one.
void PadString(std::string& text, std::int16_t width);
std::string Padded(std::string_view text, std::int16_t width);
std::string Padded(std::int64_t value, std::int16_t width);

// Character codes; a large value gives one that is no digit.
int PowerCode(std::int16_t power);
int HeightCode(std::int32_t height);
int DirCode(std::int16_t directivity);

// "3730.00N" and the symbol table, "12215.00W". Minutes are rounded with halves to even and never carry: 60.00 stands.
// Raise Failure for a place off the earth.
std::string LatitudeText(double lat, char symbolTable);
std::string LongitudeText(double lon);

// Watts, feet, dB and degrees; empty where power or height is not known. Raises Failure for a direction that no
// character stands for.
std::string PhgText(std::int16_t power, std::int32_t height, std::int16_t gain, std::int16_t directivity);

} // namespace ruvenmark
