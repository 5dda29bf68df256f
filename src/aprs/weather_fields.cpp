#include "aprs/weather_fields.h"

#include "aprs/digit_block.h"
#include "aprs/text.h"
#include "aprs/weather_letters.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kMaxFiller = 5;
constexpr std::size_t kMaxJunk = 8;
constexpr std::size_t kGreedy = 9; // As many as fit an int for sure.

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

bool MayBeSigned(char letter, char sign)
{
    return (sign == '-' && (letter == 't' || letter == 'v')) || (sign == '+' && letter == 'v');
}

// Bytes of a figure that says nothing: at least two dots, blanks or dashes.
std::size_t UnknownSize(std::string_view text)
{
    std::size_t n = 0;
    while (n < text.size() && n < kMaxFiller && (IsFiller(text[n]) || text[n] == '-'))
        ++n;
    return n >= 2 ? n : 0;
}

bool IsDecimal(std::string_view text, std::size_t point)
{
    return text.size() > point + 1 && text[point] == '.' && IsDigit(text[point + 1]);
}

// A figure that is not written as its field asks for: its digits with all points and dashes between them.
std::size_t BadFigureSize(std::string_view text)
{
    std::size_t n = 0;
    bool bDigit = false;
    for (; n < text.size() && (IsDigit(text[n]) || text[n] == '.' || text[n] == '-'); ++n)
        bDigit = bDigit || IsDigit(text[n]);
    return bDigit ? n : 0;
}

// Snow is told with decimals as well: "s5.5", "s.50".
std::size_t TakeDecimal(std::string_view figure, std::size_t point, Weather& weather)
{
    const DigitRun decimals = ReadDigits(figure.substr(point + 1), 2);
    const int whole = point > 0 ? ParseDigits(figure.substr(0, point)).value_or(0) : 0;
    weather.snowDay = whole + decimals.value / (decimals.count == 1 ? 10.0 : 100.0);
    return point + 1 + decimals.count;
}

// The field's letter with its figure in front of the text; returns its size, or 0 where there is no figure. A figure
// that is not as it should be is dropped. Behind a blank a single digit is no figure, but a word.
std::size_t TakeField(std::string_view text, const Field& field, bool bBehindBlank, Weather& weather)
{
    if (text.size() < 2)
        return 0;
    const std::string_view figure = text.substr(1);
    if (const std::size_t unknown = UnknownSize(figure))
        return 1 + unknown;
    const std::size_t sign = MayBeSigned(text[0], figure[0]) ? 1 : 0;
    const DigitRun run = ReadDigits(figure.substr(sign), kGreedy);
    const std::size_t size = sign + run.count;
    const bool bDecimal = IsDecimal(figure, size);
    if (bDecimal && text[0] == 's' && run.count <= field.maxDigits)
        return 1 + TakeDecimal(figure, size, weather);
    if (run.count == 0 || run.count > field.maxDigits || bDecimal) {
        const std::size_t dropped = BadFigureSize(figure);
        return dropped > 0 ? 1 + dropped : 0;
    }
    if (bBehindBlank && run.count == 1)
        return 0;
    if (field.value != nullptr && run.count >= field.minDigits) {
        const int value = static_cast<int>(run.value);
        weather.*field.value = (figure[0] == '-' ? -value : value) / field.divisor + field.addend;
    }
    return 1 + size;
}

void SetPlain(char letter, std::uint32_t figure, Weather& weather)
{
    const Field& field = FieldOf(letter);
    weather.*field.value = static_cast<int>(figure) / field.divisor;
}

// A field by the book, of a letter not met before: at the text's front, where a block stands behind the letter. Its
// size, or 0 where it is another.
template <std::size_t digits>
std::size_t TakeUsualField(const char* text, const DigitBlock& block, Letters& met, Weather& weather)
{
    if (text[1 + digits] == '.' || !IsPlain(text[0], digits) || met.Hold(text[0]))
        return 0;
    met.Add(text[0]);
    SetPlain(text[0], digits == 2 ? block.Two(0) : digits == 3 ? block.Three(0) : block.Value(digits), weather);
    return 1 + digits;
}

// The book gives three digits to nearly all fields, two to humidity, five to pressure. A branch for each number: the
// next field is on its way while this one is still read.
std::size_t TakeUsualField(const char* text, Letters& met, Weather& weather)
{
    const DigitBlock block(text + 1);
    if (block.IsRunOf(3))
        return TakeUsualField<3>(text, block, met, weather);
    if (block.IsRunOf(2))
        return TakeUsualField<2>(text, block, met, weather);
    return block.IsRunOf(5) ? TakeUsualField<5>(text, block, met, weather) : 0;
}

// Two fields of three digits at once, which lie in one block.
bool TakeTwoFields(const char* text, Letters& met, Weather& weather)
{
    constexpr std::size_t kDigits = 3;
    const char first = text[0];
    const char second = text[1 + kDigits];
    const char next = text[DigitBlock::kSize];
    const DigitBlock digits = DigitBlock(text).Zeroed(0).Zeroed(1 + kDigits);
    if (!digits.Begins(DigitBlock::kSize) || IsDigit(next) || next == '.' || !IsPlain(first, kDigits) ||
        !IsPlain(second, kDigits) || first == second || met.Hold(first) || met.Hold(second))
        return false;
    met.Add(first);
    met.Add(second);
    SetPlain(first, digits.Three(1), weather);
    SetPlain(second, digits.Three(2 + kDigits), weather);
    return true;
}

// Usual fields in front of the text; returns their size.
std::size_t TakeUsualFields(std::string_view text, Letters& met, Weather& weather)
{
    constexpr std::size_t kTwo = DigitBlock::kSize;
    Letters letters = met;
    std::size_t at = 0;
    while (at + kTwo < text.size() && TakeTwoFields(text.data() + at, letters, weather))
        at += kTwo;
    std::size_t size = 1;
    for (; size > 0 && at + DigitBlock::kSize < text.size(); at += size)
        size = TakeUsualField(text.data() + at, letters, weather);
    met = letters;
    return at;
}

struct Width {
    std::size_t least, most;
};

// Digits by the book; none for letters that are not in it.
Width BookWidth(char letter)
{
    switch (letter) {
    case 'h':
        return {2, 3};
    case 'b':
        return {4, 5};
    case '#':
    case 'v':
        return {1, 0};
    default:
        return {3, 3};
    }
}

// A field exactly by the book: what may be believed behind bytes that nobody understands.
bool IsWholeField(std::string_view text)
{
    if (!IsField(text[0]))
        return false;
    const std::size_t sign = text.starts_with("t-") ? 1 : 0;
    const DigitRun run = ReadDigits(text.substr(1 + sign), kGreedy);
    if (run.count == 0)
        return text.substr(1).starts_with("..");
    const Width width = BookWidth(text[0]);
    const std::size_t size = sign + run.count;
    return size >= width.least && size <= width.most && !IsDecimal(text, 1 + size);
}

bool IsJunk(char c)
{
    return IsDigit(c) || c == '.' || c == '-' || static_cast<unsigned char>(c) >= 0x80;
}

// Size of a letter without a figure or in no book, and of stray bytes of figures, where a whole field follows them;
// else the sender's software or comment begins here.
std::size_t JunkSize(std::string_view text, const Letters& met)
{
    std::size_t n = IsUpper(text[0]) || IsLower(text[0]) ? 1 : 0;
    while (n < text.size() && n < kMaxJunk && IsJunk(text[n]))
        ++n;
    const bool bField = n > 0 && n < text.size() && IsField(text[n]) && !met.Hold(text[n]);
    return bField && IsWholeField(text.substr(n)) ? n : 0;
}

// The size of a field that comes again between others, as some write it; 0 of one that begins the sender's software.
std::size_t RepeatedSize(std::string_view text)
{
    const std::size_t size = 1 + ReadDigits(text.substr(1), kGreedy).count;
    const bool bBetween = IsWholeField(text) && size < text.size() && IsWholeField(text.substr(size));
    return bBetween ? size : 0;
}

// What is no usual field: its size, or 0 where the fields end.
std::size_t TakeUnusual(std::string_view text, Letters& met, Weather& weather)
{
    const std::size_t gap = IsField(text[0]) ? 0 : FillerSize(text, text.size());
    if (gap == text.size())
        return 0;
    const bool bBehindBlank = gap > 0 && text[gap - 1] == ' ';
    text.remove_prefix(gap);
    const bool bField = IsField(text[0]);
    const bool bAgain = bField && met.Hold(text[0]);
    std::size_t size = 0;
    if (bAgain)
        size = RepeatedSize(text);
    else if (bField)
        size = TakeField(text, FieldOf(text[0]), bBehindBlank, weather);
    if (size == 0 && !bBehindBlank && !bAgain)
        size = JunkSize(text, met);
    if (size == 0)
        return 0;
    if (bField)
        met.Add(text[0]);
    return gap + size;
}

} // namespace

bool TakeFields(std::string_view& text, Weather& weather)
{
    Letters met;
    std::size_t taken = 0;
    do {
        const std::size_t usual = TakeUsualFields(text, met, weather);
        text.remove_prefix(usual);
        taken = text.empty() ? 0 : TakeUnusual(text, met, weather);
        text.remove_prefix(taken);
    } while (taken > 0);
    return met.HoldAny();
}

bool StartsWithFields(std::string_view text)
{
    if (text.size() < 3 || (text[0] != 'g' && text[0] != 't'))
        return false;
    if ((IsDigit(text[1]) || text[1] == '-') && IsDigit(text[2]))
        return true;
    const std::size_t unknown = UnknownSize(text.substr(1));
    const std::string_view next = text.substr(1 + unknown);
    return unknown > 0 && (text[1] == '.' || (!next.empty() && IsWholeField(next)));
}

} // namespace ruvenmark::aprs
