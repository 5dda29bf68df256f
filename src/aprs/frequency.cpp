#include "aprs/frequency.h"

#include "aprs/text.h"

#include <algorithm>
#include <array>

namespace ruvenmark::aprs {

namespace {

constexpr std::string_view kUnit = "MHZ";
constexpr std::size_t kMaxWhole = 5;
constexpr std::size_t kMaxDecimals = 6;
constexpr double kBurst = 1750; // Hertz: a tone at the beginning instead of one throughout.

// All subaudible tones in use. Packets give whole hertz, which no two of them share.
constexpr auto kTones =
    std::to_array<double>({67.0,  69.3,  71.9,  74.4,  77.0,  79.7,  82.5,  85.4,  88.5,  91.5,  94.8,  97.4,  100.0,
                           103.5, 107.2, 110.9, 114.8, 118.8, 123.0, 127.3, 131.8, 136.5, 141.3, 146.2, 151.4, 156.7,
                           159.8, 162.2, 165.5, 167.9, 171.3, 173.8, 177.3, 179.9, 183.5, 186.2, 189.9, 192.8, 196.6,
                           199.5, 203.5, 206.5, 210.7, 218.1, 225.7, 229.1, 233.6, 241.8, 250.3, 254.1});

bool IsUnit(std::string_view text)
{
    return text.size() == kUnit.size() &&
           std::equal(text.begin(), text.end(), kUnit.begin(), [](char a, char b) { return ToUpper(a) == b; });
}

bool IsSign(char c)
{
    return c == '+' || c == '-';
}

// Size of "146.520" at the end of the text; 0 where there is none, or where it is an offset.
std::size_t NumberSizeAtEnd(std::string_view text)
{
    std::size_t n = 0;
    while (n < text.size() && (IsDigit(text[text.size() - 1 - n]) || text[text.size() - 1 - n] == '.'))
        ++n;
    const std::string_view number = text.substr(text.size() - n);
    const std::size_t point = number.find('.');
    const bool bOne = point != std::string_view::npos && number.find('.', point + 1) == std::string_view::npos;
    const std::size_t decimals = bOne ? n - point - 1 : 0;
    const bool bOffset = n < text.size() && IsSign(text[text.size() - 1 - n]);
    return bOne && !bOffset && point >= 1 && point <= kMaxWhole && decimals >= 1 && decimals <= kMaxDecimals ? n : 0;
}

// "146.520": the decimals are counted, not their value, so that it is the nearest number to what is written.
double Megahertz(std::string_view number)
{
    double value = 0;
    double scale = 1;
    bool bBehindPoint = false;
    for (const char c : number) {
        if (c == '.') {
            bBehindPoint = true;
            continue;
        }
        value = value * 10 + DigitValue(c);
        scale = bBehindPoint ? scale * 10 : scale;
    }
    return value / scale;
}

std::optional<double> Tone(int hertz)
{
    const auto tone =
        std::find_if(kTones.begin(), kTones.end(), [&](double t) { return static_cast<int>(t) == hertz; });
    return tone != kTones.end() ? std::optional(*tone) : std::nullopt;
}

// An offset written out, "+5.0000MHz".
bool TakeLongOffset(std::string_view word, Frequency& frequency)
{
    if (!IsSign(word[0]) || !IsUnit(word.substr(word.size() - kUnit.size())))
        return false;
    const std::string_view number = word.substr(1, word.size() - kUnit.size() - 1);
    if (number.empty() || NumberSizeAtEnd(number) != number.size())
        return false;
    frequency.offset = word[0] == '-' ? -Megahertz(number) : Megahertz(number);
    return true;
}

// One word behind the frequency: tone ("T088", "C088", small letters for narrow channels), code ("D023"), "1750" or
// offset in tens of kilohertz ("+060"). False where it is none of them.
bool TakeWord(std::string_view word, Frequency& frequency)
{
    if (word == "1750") {
        frequency.tone = kBurst;
        return true;
    }
    if (word.size() < 4)
        return false;
    if (TakeLongOffset(word, frequency))
        return true;
    const char kind = ToUpper(word[0]);
    if ((kind == 'T' || kind == 'C' || kind == 'D') && word.size() == 4 &&
        (word.substr(1) == "off" || word.substr(1) == "OFF"))
        return true;
    const auto number = word.size() <= 5 ? ParseDigits(word.substr(1)) : std::nullopt;
    if (!number)
        return false;
    if (IsSign(kind))
        frequency.offset = (kind == '-' ? -*number : *number) / 100.0;
    else if (word.size() == 4 && (kind == 'T' || kind == 'C'))
        frequency.tone = Tone(*number);
    else if (word.size() == 4 && kind == 'D')
        frequency.digitalCode = word.substr(1);
    else
        return false;
    return true;
}

} // namespace

std::optional<Frequency> FindFrequency(std::string_view comment)
{
    for (std::size_t at = 1; at + kUnit.size() <= comment.size(); ++at) {
        if (!IsUnit(comment.substr(at, kUnit.size())))
            continue;
        const std::string_view front = TrimRight(comment.substr(0, at));
        const std::size_t size = NumberSizeAtEnd(front);
        if (size == 0)
            continue;
        Frequency frequency;
        frequency.megahertz = Megahertz(front.substr(front.size() - size));
        std::string_view rest = TrimLeft(comment.substr(at + kUnit.size()));
        while (!rest.empty()) {
            const std::string_view word = rest.substr(0, rest.find(' '));
            if (!TakeWord(word, frequency))
                break;
            rest = TrimLeft(rest.substr(word.size()));
        }
        return frequency;
    }
    return std::nullopt;
}

} // namespace ruvenmark::aprs
