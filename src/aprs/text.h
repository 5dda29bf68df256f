#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// Bytes of packets: nothing here asks the locale, and every byte value is allowed everywhere.
namespace ruvenmark::aprs {

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr bool IsUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}
constexpr bool IsLower(char c)
{
    return c >= 'a' && c <= 'z';
}
constexpr bool IsAlnum(char c)
{
    return IsDigit(c) || IsUpper(c) || IsLower(c);
}
constexpr char ToUpper(char c)
{
    return IsLower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr bool IsBetween(char c, char low, char high)
{
    return static_cast<unsigned char>(c) >= static_cast<unsigned char>(low) &&
           static_cast<unsigned char>(c) <= static_cast<unsigned char>(high);
}
// What `of` says of each byte.
template <class Of>
constexpr auto MakeByteTable(Of of)
{
    std::array<decltype(of(char{})), 256> table{};
    for (std::size_t c = 0; c < table.size(); ++c)
        table[c] = of(static_cast<char>(c));
    return table;
}

constexpr int DigitValue(char c)
{
    return c - '0';
}
constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

constexpr bool AllDigits(std::string_view text)
{
    for (const char c : text)
        if (!IsDigit(c))
            return false;
    return !text.empty();
}

// Digits only, at most nine of them, so that it always fits.
constexpr std::optional<int> ParseDigits(std::string_view text)
{
    if (text.empty() || text.size() > 9)
        return std::nullopt;
    int value = 0;
    for (const char c : text) {
        if (!IsDigit(c))
            return std::nullopt;
        value = value * 10 + DigitValue(c);
    }
    return value;
}

constexpr int HexValue(char c)
{
    if (IsDigit(c))
        return c - '0';
    const char upper = ToUpper(c);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

// An address up to its dash or star.
constexpr std::string_view WithoutSsid(std::string_view address)
{
    std::size_t n = 0;
    while (n < address.size() && address[n] != '-' && address[n] != '*')
        ++n;
    return address.substr(0, n);
}

constexpr std::string_view TrimLeft(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    return text;
}
constexpr std::string_view TrimRight(std::string_view text)
{
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}
constexpr std::string_view Trim(std::string_view text)
{
    return TrimRight(TrimLeft(text));
}

// Base-91 digit of the printable bytes '!' to '{'.
constexpr bool IsBase91(char c)
{
    return c >= '!' && c <= '{';
}
constexpr int Base91Value(char c)
{
    return c - '!';
}

inline constexpr double kFeetPerMetre = 1.0 / 0.3048;
inline constexpr double kMphPerKnot = 1.852 / 1.609344;
inline constexpr double kMphPerKmh = 1.0 / 1.609344;

} // namespace ruvenmark::aprs
