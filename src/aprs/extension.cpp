#include "aprs/extension.h"

#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kExtensionSize = 7;
// A height digit may be any byte from '0' on; 10 feet doubled more often than this no longer fits 32 bits.
constexpr int kMaxDoublings = 27;
constexpr std::array<std::string_view, 10> kDirections = {"Omni", "45",  "90",  "135", "180",
                                                          "225",  "270", "315", "360", ""};

bool IsFigure(std::string_view text)
{
    for (const char c : text)
        if (!IsDigit(c) && c != '.' && c != ' ')
            return false;
    return true;
}

bool ParseCourseSpeed(std::string_view text, PositionReport& report)
{
    if (text[3] != '/' || !IsFigure(text.substr(0, 3)) || !IsFigure(text.substr(4, 3)))
        return false;
    const auto course = ParseDigits(text.substr(0, 3));
    if (course && *course >= 1 && *course <= 360)
        report.course = *course;
    if (const auto speed = ParseDigits(text.substr(4, 3)))
        report.speed = *speed;
    return true;
}

bool IsReach(std::string_view digits)
{
    return IsDigit(digits[0]) && IsBetween(digits[1], '0', '~') && IsDigit(digits[2]) && IsDigit(digits[3]);
}

// Digits for power (or strength), height, gain and direction. Returns how many bytes they take.
std::size_t ParseReach(std::string_view text, bool bDirectionFinding, PositionReport& report)
{
    const std::string_view digits = text.substr(3, 4);
    if (!IsReach(digits))
        return 0;
    Reach reach;
    reach.digits = digits;
    reach.bDirectionFinding = bDirectionFinding;
    if (!bDirectionFinding)
        reach.power = DigitValue(digits[0]) * DigitValue(digits[0]);
    const int doublings = digits[1] - '0';
    if (doublings <= kMaxDoublings)
        reach.height = 10 << doublings;
    reach.gain = DigitValue(digits[2]);
    reach.directivity = kDirections[static_cast<std::size_t>(DigitValue(digits[3]))];
    // A beacon rate has a slash behind it, which may begin an altitude.
    if (text.size() > kExtensionSize + 1 && text[8] == '/' && (IsDigit(text[7]) || IsUpper(text[7])))
        reach.digits = text.substr(3, 5);
    report.reach = reach;
    return 3 + reach.digits.size();
}

bool ParseRange(std::string_view text, PositionReport& report)
{
    const auto miles = ParseDigits(text.substr(3, 4));
    if (miles)
        report.range = *miles;
    return miles.has_value();
}

std::size_t ExtensionSize(std::string_view text, PositionReport& report)
{
    const std::string_view tag = text.substr(0, 3);
    if (tag == "PHG" || tag == "DFS")
        return ParseReach(text, tag == "DFS", report);
    if (tag == "RNG")
        return ParseRange(text, report) ? kExtensionSize : 0;
    return ParseCourseSpeed(text, report) ? kExtensionSize : 0;
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
