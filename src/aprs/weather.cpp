#include "aprs/weather.h"

#include "aprs/text.h"
#include "aprs/time_stamp.h"

#include <algorithm>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kWindSize = 7; // ddd/sss
constexpr std::size_t kMaxFiller = 5;
constexpr std::uint8_t kGreedy = 9; // As many as fit an int for sure.

bool IsFiller(char c)
{
    return c == '.' || c == ' ';
}

std::size_t FillerSize(std::string_view text, std::size_t limit)
{
    std::size_t n = 0;
    while (n < text.size() && n < limit && IsFiller(text[n]))
        ++n;
    return n;
}

bool IsWindFigure(std::string_view text)
{
    for (const char c : text)
        if (!IsDigit(c) && !IsFiller(c) && c != '-')
            return false;
    return true;
}

// "ddd/sss" or "cdddsddd" in front; takes it off the text.
bool TakeWind(std::string_view& text, Weather& weather)
{
    const bool bLetters = text.size() > kWindSize && text[0] == 'c' && text[4] == 's';
    const std::size_t at = bLetters ? 1 : 0;
    if (text.size() < kWindSize || (!bLetters && text[3] != '/') || !IsWindFigure(text.substr(at, 3)) ||
        !IsWindFigure(text.substr(at + 4, 3)))
        return false;
    if (const auto direction = ParseDigits(text.substr(at, 3)); direction && *direction <= 360)
        weather.windDirection = *direction;
    if (const auto speed = ParseDigits(text.substr(at + 4, 3)))
        weather.windSpeed = *speed;
    text.remove_prefix(at + kWindSize);
    return true;
}

using Value = std::optional<double> Weather::*;

// What the figure behind a letter means: its value is the figure divided, with something added.
struct Field {
    Value value = nullptr; // None for letters that are known, but of no use.
    double divisor = 1;
    int addend = 0;
    std::uint8_t minDigits = 1;
    std::uint8_t maxDigits = 0; // 0 for letters that mean nothing here.
};

constexpr std::array<Field, 256> MakeFields()
{
    std::array<Field, 256> fields{};
    fields['g'] = {&Weather::gust, 1, 0, 1, kGreedy};
    fields['t'] = {&Weather::temperature, 1, 0, 1, kGreedy};
    fields['r'] = {&Weather::rainHour, 100, 0, 1, 3};
    fields['p'] = {&Weather::rainDay, 100, 0, 1, 3};
    fields['P'] = {&Weather::rainMidnight, 100, 0, 1, 3};
    fields['h'] = {&Weather::humidity, 1, 0, 1, 3};
    fields['b'] = {&Weather::pressure, 10, 0, 4, 5};
    fields['l'] = {&Weather::luminosity, 1, 1000, 1, 3};
    fields['L'] = {&Weather::luminosity, 1, 0, 1, 3};
    fields['s'] = {&Weather::snowDay, 1, 0, 1, 3};
    fields['#'] = {nullptr, 1, 0, 1, kGreedy}; // A raw rain counter.
    fields['v'] = {nullptr, 1, 0, 1, kGreedy}; // Seen on the air, in no book.
    return fields;
}
constexpr std::array<Field, 256> kFields = MakeFields();

// Two digits have no room for 100, which is sent as 00.
void CorrectHumidity(Weather& weather)
{
    if (weather.humidity == 0)
        weather.humidity = 100;
    else if (weather.humidity > 100)
        weather.humidity.reset();
}

bool MayBeSigned(char letter, char sign)
{
    return (sign == '-' && (letter == 't' || letter == 'v')) || (sign == '+' && letter == 'v');
}

// One letter with its figure in front of the text; returns its size, or 0 where there is none. Behind a blank a single
// digit is no figure, but a word.
std::size_t TakeField(std::string_view text, bool bBehindBlank, Weather& weather)
{
    const char letter = text[0];
    const Field& field = kFields[static_cast<unsigned char>(letter)];
    if (field.maxDigits == 0 || text.size() < 2)
        return 0;
    const std::size_t start = MayBeSigned(letter, text[1]) ? 2 : 1;
    const std::size_t end = std::min(text.size(), start + field.maxDigits);
    std::size_t at = start;
    int figure = 0;
    if (end - start >= 3 && AllDigits(text.substr(start, 3))) { // Nearly always three.
        figure = (DigitValue(text[start]) * 10 + DigitValue(text[start + 1])) * 10 + DigitValue(text[start + 2]);
        at += 3;
    }
    for (; at < end && IsDigit(text[at]); ++at)
        figure = figure * 10 + DigitValue(text[at]);
    if (at == start) {
        const std::size_t filler = FillerSize(text.substr(1), kMaxFiller);
        return start == 1 && filler >= 2 ? 1 + filler : 0;
    }
    if (bBehindBlank && at == start + 1)
        return 0;
    if (field.value != nullptr && at - start >= field.minDigits) {
        const int value = text[1] == '-' ? -figure : figure;
        weather.*field.value = value / field.divisor + field.addend;
    }
    return at;
}

// All letters with figures; returns whether there was one.
bool TakeFields(std::string_view& text, Weather& weather)
{
    bool bAny = false;
    while (!text.empty()) {
        const std::size_t gap = IsFiller(text[0]) ? FillerSize(text, text.size()) : 0;
        if (gap == text.size())
            break;
        const bool bBehindBlank = gap > 0 && text[gap - 1] == ' ';
        const std::size_t size = TakeField(text.substr(gap), bBehindBlank, weather);
        if (size == 0)
            break;
        text.remove_prefix(gap + size);
        bAny = true;
    }
    return bAny;
}

// Weather without a wind in front begins with gust or temperature, or it is plain text.
bool StartsWithFigure(std::string_view text)
{
    return text.size() >= 3 && (text[0] == 'g' || text[0] == 't') &&
           ((IsDigit(text[1]) && IsDigit(text[2])) || (text[1] == '-' && IsDigit(text[2])) ||
            (text[1] == '.' && text[2] == '.'));
}

} // namespace

bool ParseWeather(std::string_view text, Weather& weather, std::string_view& rest)
{
    const bool bWind = TakeWind(text, weather);
    if (!bWind && !StartsWithFigure(text))
        return false;
    const bool bFields = TakeFields(text, weather);
    CorrectHumidity(weather);
    rest = text;
    return bFields || (bWind && (weather.windDirection || weather.windSpeed));
}

Refusal ParsePositionlessWeather(std::string_view body, WeatherReport& report)
{
    if (body.size() <= kMonthTimeSize || !AllDigits(body.substr(0, kMonthTimeSize)) || body[kMonthTimeSize] != 'c')
        return Refusal::BadWeather;
    report.time = ParseMonthTime(body.substr(0, kMonthTimeSize));
    std::string_view rest;
    if (!ParseWeather(body.substr(kMonthTimeSize), report.weather, rest))
        return Refusal::BadWeather;
    report.comment = Trim(rest);
    return Refusal::None;
}

} // namespace ruvenmark::aprs
