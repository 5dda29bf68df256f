#include "aprs/destination_symbol.h"

#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kPrefixSize = 3;
constexpr char kFirstCode = '!';
constexpr std::string_view kSsidCodes = "aUfbYX's><OjRkv"; // Of SSID 1 to 15, all primary.

// Two letters name a stretch of the table and a place in it: primary by the first letter of each pair, alternate by the
// second.
struct Stretch {
    char primary, alternate; // First letter.
    char from, to;           // Second letter.
    char code;               // Symbol code of `from`.
};
constexpr std::array<Stretch, 7> kStretches = {{{'B', 'O', 'B', 'P', '!'},
                                                {'P', 'A', '0', '9', '0'},
                                                {'M', 'N', 'R', 'X', ':'},
                                                {'P', 'A', 'A', 'Z', 'A'},
                                                {'H', 'D', 'S', 'X', '['},
                                                {'L', 'S', 'A', 'Z', 'a'},
                                                {'J', 'Q', '1', '4', '{'}}};

std::optional<Symbol> LetterSymbol(std::string_view letters)
{
    for (const Stretch& stretch : kStretches) {
        const bool bPrimary = letters[0] == stretch.primary;
        if ((!bPrimary && letters[0] != stretch.alternate) || !IsBetween(letters[1], stretch.from, stretch.to))
            continue;
        const char code = static_cast<char>(stretch.code + (letters[1] - stretch.from));
        const bool bOverlay = !bPrimary && letters.size() == 3 && (IsUpper(letters[2]) || IsDigit(letters[2]));
        return Symbol{bPrimary ? '/' : bOverlay ? letters[2] : '\\', code};
    }
    return std::nullopt;
}

// Cnn of the primary, Enn of the alternate table, counted from 1.
std::optional<Symbol> NumberSymbol(std::string_view text)
{
    const auto number = ParseDigits(text.substr(1));
    if (!number || *number < 1 || *number > 94 || (text[0] != 'C' && text[0] != 'E'))
        return std::nullopt;
    return Symbol{text[0] == 'C' ? '/' : '\\', static_cast<char>(kFirstCode - 1 + *number)};
}

} // namespace

std::optional<Symbol> DestinationSymbol(std::string_view dest)
{
    dest = WithoutSsid(dest);
    if (dest.size() < kPrefixSize + 2 || (!dest.starts_with("GPS") && !dest.starts_with("SPC")))
        return std::nullopt;
    const std::string_view rest = dest.substr(kPrefixSize);
    if (rest.size() == 3) {
        if (const auto symbol = NumberSymbol(rest))
            return symbol;
    }
    return LetterSymbol(rest);
}

std::optional<Symbol> SsidSymbol(std::string_view source)
{
    const std::size_t dash = source.find('-');
    if (dash == std::string_view::npos)
        return std::nullopt;
    const auto ssid = ParseDigits(source.substr(dash + 1));
    if (!ssid || *ssid < 1 || static_cast<std::size_t>(*ssid) > kSsidCodes.size())
        return std::nullopt;
    return Symbol{'/', kSsidCodes[static_cast<std::size_t>(*ssid) - 1]};
}

} // namespace ruvenmark::aprs
