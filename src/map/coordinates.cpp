#include "map/coordinates.h"

#include "platform/numbers.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

namespace ruvenmark {

namespace {

// --- Writing

std::string MinutesText(double degrees, int digits, char positive, char negative)
{
    constexpr double kParts = 60000; // Thousandths of a minute in a degree.
    const long long parts = std::llround(std::abs(degrees) * kParts);
    std::array<char, 48> text{};
    // In whole numbers: the system's locale may have a comma.
    std::snprintf(text.data(), text.size(), "%0*lld°%02lld.%03lld'%c", digits, parts / 60000, parts % 60000 / 1000,
                  parts % 1000, degrees < 0 ? negative : positive);
    return text.data();
}

// --- Locators

// A pair of characters of a locator: how many squares a side, and the first of its characters.
struct LocatorPair {
    int count;
    char first;
};
constexpr std::array<LocatorPair, 4> kPairs = {{{18, 'A'}, {10, '0'}, {24, 'a'}, {10, '0'}}};

std::optional<int> ValueOf(char c, const LocatorPair& pair)
{
    const int value = pair.first == '0' ? c - '0' : ToUpper(c) - 'A';
    return value >= 0 && value < pair.count ? std::optional(value) : std::nullopt;
}

// --- Reading

// A number or a letter of a typed position; what parts them says nothing but for a comma or a slash.
struct Token {
    enum class Kind : std::uint8_t { Number, Letter, Break };
    Kind kind;
    double number = 0;
    char letter = 0;
    bool bSigned = false;
};

bool IsNumberPart(char c)
{
    return IsDigit(c) || c == '.';
}

// The marks of degrees, minutes and seconds, as far as keyboards and web pages have them.
std::size_t MarkSize(std::string_view text)
{
    constexpr std::array<std::string_view, 10> kMarks = {"°", "º", "′", "″", "’", "”", "'", "\"", " ", "\t"};
    for (const std::string_view mark : kMarks)
        if (text.starts_with(mark))
            return mark.size();
    return 0;
}

std::optional<Token> ReadNumberToken(std::string_view& text)
{
    const std::size_t sign = text.front() == '-' || text.front() == '+' ? 1 : 0;
    std::size_t size = sign;
    while (size < text.size() && IsNumberPart(text[size]))
        ++size;
    const auto number = ReadNumber(text.substr(sign, size - sign));
    if (!number)
        return std::nullopt;
    const bool bMinus = text.front() == '-';
    text.remove_prefix(size);
    return Token{Token::Kind::Number, bMinus ? -*number : *number, bMinus ? '-' : '+', sign == 1};
}

std::optional<Token> ReadToken(std::string_view& text)
{
    const char c = ToUpper(text.front());
    if (IsNumberPart(c) || c == '-' || c == '+')
        return ReadNumberToken(text);
    text.remove_prefix(1);
    if (c == ',' || c == '/' || c == ';')
        return Token{Token::Kind::Break};
    if (c == 'N' || c == 'S' || c == 'E' || c == 'W')
        return Token{Token::Kind::Letter, 0, c};
    return std::nullopt;
}

std::optional<std::vector<Token>> ReadTokens(std::string_view text)
{
    constexpr std::size_t kMost = 12;
    std::vector<Token> tokens;
    while (!text.empty()) {
        if (const std::size_t mark = MarkSize(text); mark > 0) {
            text.remove_prefix(mark);
            continue;
        }
        const auto token = ReadToken(text);
        if (!token || tokens.size() == kMost)
            return std::nullopt;
        tokens.push_back(*token);
    }
    return tokens;
}

// One of the two numbers of a position.
struct Angle {
    double degrees = 0;
    char letter = 0;
};

// Degrees, minutes, seconds; only the first may have a sign, and only the last decimals.
std::optional<Angle> ReadAngle(const std::vector<Token>& tokens, std::size_t first, std::size_t last)
{
    Angle angle;
    double unit = 1;
    bool bMinus = false, bEnded = false;
    for (std::size_t i = first; i < last; ++i) {
        const Token& token = tokens[i];
        if (token.kind == Token::Kind::Letter) {
            if (angle.letter != 0)
                return std::nullopt;
            angle.letter = token.letter;
            continue;
        }
        const bool bFirst = unit == 1;
        const double number = std::abs(token.number);
        if (token.kind == Token::Kind::Break || bEnded || (!bFirst && (token.bSigned || number >= 60)) || unit < 1e-4)
            return std::nullopt;
        bMinus = bMinus || (token.bSigned && token.letter == '-');
        bEnded = number != std::floor(number);
        angle.degrees += number * unit;
        unit /= 60;
    }
    const bool bSouthOrWest = angle.letter == 'S' || angle.letter == 'W';
    if (unit == 1 || (bMinus && angle.letter != 0))
        return std::nullopt;
    if (bMinus || bSouthOrWest)
        angle.degrees = -angle.degrees;
    return angle;
}

// Where the second number begins: behind a comma or slash, at a letter's side, else in the middle.
std::optional<std::size_t> SecondBegins(const std::vector<Token>& tokens)
{
    using Kind = Token::Kind;
    const auto isBreak = [](const Token& token) { return token.kind == Kind::Break; };
    const auto isLetter = [](const Token& token) { return token.kind == Kind::Letter; };
    if (const auto at = std::find_if(tokens.begin(), tokens.end(), isBreak); at != tokens.end())
        return static_cast<std::size_t>(at - tokens.begin());
    const auto letters = std::count_if(tokens.begin(), tokens.end(), isLetter);
    if (letters == 0)
        return tokens.size() % 2 == 0 ? std::optional(tokens.size() / 2) : std::nullopt;
    if (letters != 2)
        return std::nullopt;
    if (isLetter(tokens.front())) {
        const auto second = std::find_if(tokens.begin() + 1, tokens.end(), isLetter);
        return static_cast<std::size_t>(second - tokens.begin());
    }
    const auto firstLetter = std::find_if(tokens.begin(), tokens.end(), isLetter);
    return static_cast<std::size_t>(firstLetter - tokens.begin()) + 1;
}

bool IsLongitude(const Angle& angle)
{
    return angle.letter == 'E' || angle.letter == 'W';
}

} // namespace

std::string CoordinateText(GeoPoint point, CoordinateForm form)
{
    if (form == CoordinateForm::Locator)
        return LocatorOf(point);
    if (form == CoordinateForm::Minutes)
        return MinutesText(point.lat, 2, 'N', 'S') + ' ' + MinutesText(point.lon, 3, 'E', 'W');
    const GeoPoint shown = ShownPoint(point);
    return ShortText(shown.lat) + ", " + ShortText(shown.lon);
}

// Counted in the smallest squares there are, so that a point on a square's edge is never thrown off it by a rounding.
std::string LocatorOf(GeoPoint point, std::size_t characters)
{
    constexpr double kAcross = 120, kUp = 240; // Smallest squares in a degree.
    constexpr double kRounding = 1e-6;
    const auto count = [](double degrees, double perDegree, double all) {
        const double squares = std::floor(degrees * perDegree + kRounding);
        return static_cast<std::int64_t>(std::clamp(squares, 0.0, all * perDegree - 1));
    };
    std::int64_t right = count(point.lon + 180, kAcross, 360), up = count(point.lat + 90, kUp, 180);
    std::int64_t inPair = 1;
    for (const LocatorPair& pair : kPairs)
        inPair *= pair.count;
    std::string locator;
    for (const LocatorPair& pair : kPairs) {
        if (locator.size() >= characters)
            break;
        inPair /= pair.count;
        for (std::int64_t* squares : {&right, &up}) {
            locator += static_cast<char>(pair.first + *squares / inPair);
            *squares %= inPair;
        }
    }
    return locator;
}

std::optional<GeoPoint> ReadLocator(std::string_view text)
{
    constexpr std::size_t kShortest = 4, kLongest = 8;
    const std::string_view locator = Trim(text);
    if (locator.size() < kShortest || locator.size() > kLongest || locator.size() % 2 != 0)
        return std::nullopt;
    double x = 0, y = 0, square = 1;
    for (std::size_t i = 0; i < locator.size(); i += 2) {
        const LocatorPair& pair = kPairs.at(i / 2);
        const auto right = ValueOf(locator[i], pair), up = ValueOf(locator[i + 1], pair);
        if (!right || !up)
            return std::nullopt;
        square /= pair.count;
        x += *right * square;
        y += *up * square;
    }
    return GeoPoint{(y + square / 2) * 180 - 90, (x + square / 2) * 360 - 180};
}

std::optional<GeoPoint> ReadLatLon(std::string_view text)
{
    const auto tokens = ReadTokens(Trim(text));
    const auto second = tokens ? SecondBegins(*tokens) : std::nullopt;
    if (!second || *second >= tokens->size())
        return std::nullopt;
    const bool bBreak = (*tokens)[*second].kind == Token::Kind::Break;
    auto lat = ReadAngle(*tokens, 0, *second);
    auto lon = ReadAngle(*tokens, *second + (bBreak ? 1 : 0), tokens->size());
    if (!lat || !lon || (lat->letter == 0) != (lon->letter == 0))
        return std::nullopt;
    if (IsLongitude(*lat))
        std::swap(lat, lon);
    const bool bFit = lat->letter == 0 || (!IsLongitude(*lat) && IsLongitude(*lon));
    if (!bFit || std::abs(lat->degrees) > 90 || std::abs(lon->degrees) > 180)
        return std::nullopt;
    return GeoPoint{lat->degrees, lon->degrees};
}

} // namespace ruvenmark
