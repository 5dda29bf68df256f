#include "aprs/reach.h"

#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kReachSize = 7;
constexpr std::string_view kPower = "PHG";
// A height digit may be any byte from '0' on; 10 feet doubled more often than this no longer fits 32 bits.
constexpr int kMaxDoublings = 27;
constexpr std::array<std::string_view, 10> kDirections = {"Omni", "45",  "90",  "135", "180",
                                                          "225",  "270", "315", "360", ""};

bool IsReach(std::string_view digits)
{
    return IsDigit(digits[0]) && IsBetween(digits[1], '0', '~') && IsDigit(digits[2]) && IsDigit(digits[3]);
}

// A beacon rate has a slash behind it, which may begin an altitude.
bool HasRate(std::string_view text)
{
    return text.size() > kReachSize + 1 && text[8] == '/' && (IsDigit(text[7]) || IsUpper(text[7]));
}

// In free text all four are digits, the last names a direction, and neither end is the middle of something else.
bool IsReachInText(std::string_view piece, std::size_t at)
{
    const std::string_view text = piece.substr(at);
    if (text.size() < kReachSize || !AllDigits(text.substr(3, 4)) || text[6] == '9')
        return false;
    const bool bBegins = at == 0 || (!IsUpper(piece[at - 1]) && !IsLower(piece[at - 1]));
    return bBegins && (text.size() == kReachSize || !IsDigit(text[kReachSize]) || HasRate(text));
}

} // namespace

std::size_t ParseReach(std::string_view text, PositionReport& report)
{
    const std::string_view digits = text.substr(3, 4);
    if (!IsReach(digits))
        return 0;
    Reach& reach = report.reach.emplace();
    reach.digits = text.substr(3, HasRate(text) ? 5 : 4);
    reach.bDirectionFinding = !text.starts_with(kPower);
    if (!reach.bDirectionFinding)
        reach.power = DigitValue(digits[0]) * DigitValue(digits[0]);
    const int doublings = digits[1] - '0';
    if (doublings <= kMaxDoublings)
        reach.height = 10 << doublings;
    reach.gain = DigitValue(digits[2]);
    reach.directivity = kDirections[static_cast<std::size_t>(DigitValue(digits[3]))];
    return 3 + reach.digits.size();
}

void TakeReach(PositionReport& report)
{
    for (std::size_t i = 0; i < report.comment.Count(); ++i) {
        const std::string_view piece = report.comment[i];
        for (std::size_t at = piece.find(kPower); at != std::string_view::npos; at = piece.find(kPower, at + 1)) {
            if (IsReachInText(piece, at)) {
                const std::size_t size = ParseReach(piece.substr(at), report);
                const bool bDelimiter = piece.size() > at + size && piece[at + size] == '/';
                report.comment.Cut(i, at, bDelimiter ? size + 1 : size);
                return;
            }
        }
    }
}

} // namespace ruvenmark::aprs
