#include "aprs/extension.h"

#include "aprs/digit_block.h"
#include "aprs/reach.h"
#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kExtensionSize = 7;

bool IsFigure(std::string_view text)
{
    for (const char c : text)
        if (!IsDigit(c) && c != '.' && c != ' ')
            return false;
    return true;
}

// Two figures with a slash between them.
[[gnu::noinline]] bool ParseCourseSpeed(std::string_view text, PositionReport& report)
{
    if (const auto figures = ReadThreeAndThree(text.data())) {
        const auto [course, speed] = *figures;
        if (course >= 1 && course <= 360)
            report.course = course;
        report.speed = speed;
        return true;
    }
    if (!IsFigure(text.substr(0, 3)) || !IsFigure(text.substr(4, 3)))
        return false;
    const auto course = ParseDigits(text.substr(0, 3));
    if (course && *course >= 1 && *course <= 360)
        report.course = *course;
    if (const auto speed = ParseDigits(text.substr(4, 3)))
        report.speed = *speed;
    return true;
}

bool ParseRange(std::string_view text, PositionReport& report)
{
    const auto miles = ParseDigits(text.substr(3, 4));
    if (miles)
        report.range = *miles;
    return miles.has_value();
}

// Of those that begin with a name.
std::size_t NamedSize(std::string_view text, PositionReport& report)
{
    if (text.starts_with("PHG") || text.starts_with("DFS"))
        return ParseReach(text, report);
    return text.starts_with("RNG") && ParseRange(text, report) ? kExtensionSize : 0;
}

std::size_t ExtensionSize(std::string_view text, PositionReport& report)
{
    if (text[3] == '/')
        return ParseCourseSpeed(text, report) ? kExtensionSize : 0;
    return NamedSize(text, report);
}

} // namespace

std::string_view ParseExtension(std::string_view text, PositionReport& report)
{
    const Symbol symbol = report.position.symbol;
    if (text.size() < kExtensionSize || (symbol.table == '\\' && symbol.code == 'l'))
        return text;
    return text.substr(ExtensionSize(text, report));
}

} // namespace ruvenmark::aprs
