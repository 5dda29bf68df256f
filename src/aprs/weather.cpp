#include "aprs/weather.h"

#include "aprs/digit_block.h"
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

// The usual wind, "ddd/sss" with all its digits.
bool TakeExactWind(std::string_view& text, Weather& weather)
{
    constexpr std::size_t kSlash = 3;
    constexpr std::size_t kDigits = kWindSize - 1;
    if (text.size() < DigitBlock::kSize)
        return false;
    const DigitBlock block(text.data());
    const DigitBlock digits = block.Without(kSlash);
    if (!block.Is(kSlash, '/') || digits.Count() < kDigits)
        return false;
    const std::uint32_t both = digits.Value(kDigits);
    if (both / 1000 <= 360)
        weather.windDirection = both / 1000;
    weather.windSpeed = both % 1000;
    text.remove_prefix(kWindSize);
    return true;
}

// "ddd/sss" or "cdddsddd" in front; takes it off the text.
bool TakeWind(std::string_view& text, Weather& weather)
{
    if (TakeExactWind(text, weather))
        return true;
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
    float divisor = 1;     // Small whole numbers, like the next: 16 bytes make a field quick to find.
    std::int16_t addend = 0;
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

const Field& FieldOf(char letter)
{
    return kFields[static_cast<unsigned char>(letter)];
}

// The field's letter with its figure in front of the text; returns its size, or 0 where there is no figure. Behind a
// blank a single digit is no figure, but a word.
std::size_t TakeField(std::string_view text, const Field& field, bool bBehindBlank, Weather& weather)
{
    if (text.size() < 2)
        return 0;
    const bool bSigned = MayBeSigned(text[0], text[1]);
    const std::size_t start = bSigned ? 2 : 1;
    const DigitRun run = ReadDigits(text.substr(start), field.maxDigits);
    if (run.count == 0) {
        const std::size_t filler = FillerSize(text.substr(1), kMaxFiller);
        return !bSigned && filler >= 2 ? 1 + filler : 0;
    }
    if (bBehindBlank && run.count == 1)
        return 0;
    if (field.value != nullptr && run.count >= field.minDigits) {
        const int figure = static_cast<int>(run.value);
        weather.*field.value = (text[1] == '-' ? -figure : figure) / double{field.divisor} + field.addend;
    }
    return start + run.count;
}

// All letters with figures; returns whether there was one.
bool TakeFields(std::string_view& text, Weather& weather)
{
    bool bAny = false;
    while (!text.empty()) {
        const bool bGap = FieldOf(text[0]).maxDigits == 0;
        const std::size_t gap = bGap ? FillerSize(text, text.size()) : 0;
        if (gap == text.size() || FieldOf(text[gap]).maxDigits == 0)
            break;
        const bool bBehindBlank = bGap && text[gap - 1] == ' ';
        const std::size_t size = TakeField(text.substr(gap), FieldOf(text[gap]), bBehindBlank, weather);
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
