#include "aprs/comment_extras.h"

#include "aprs/comment_marks.h"
#include "aprs/digit_block.h"
#include "aprs/reach.h"
#include "aprs/text.h"

#include <algorithm>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kAltitudeSize = 9; // /A=dddddd
constexpr std::size_t kAltitudeName = 2; // In front of the equals sign.
constexpr std::string_view kAltitude = "/A=";
constexpr std::size_t kDaoSize = 5; // !Dxy!
constexpr std::size_t kMicEAltitudeSize = 4;
constexpr std::size_t kMaxTelemetry = 14; // Seven pairs of digits.
constexpr double kMinute = 1.0 / 60.0;

// "=dddddd", or a minus and five digits.
std::optional<int> AltitudeFeet(const char* text)
{
    const bool bMinus = text[1] == '-';
    const DigitBlock digits = DigitBlock::OfSeven(text).Zeroed(0).Zeroed(bMinus ? 1 : 0);
    if (!digits.Begins(kAltitudeSize - kAltitudeName))
        return std::nullopt;
    const int feet = static_cast<int>(digits.Value(kAltitudeSize - kAltitudeName));
    return bMinus ? -feet : feet;
}

void TakeAltitude(Comment& comment, PositionReport& report)
{
    for (std::size_t i = 0; i < comment.Count(); ++i) {
        const std::string_view piece = comment[i];
        for (std::size_t at = piece.find('='); at != std::string_view::npos; at = piece.find('=', at + 1)) {
            if (at < kAltitudeName || piece[at - 1] != 'A' || piece[at - 2] != '/' ||
                piece.size() - at < kAltitudeSize - kAltitudeName)
                continue;
            if (const auto feet = AltitudeFeet(piece.data() + at)) {
                report.altitude = *feet;
                comment.Cut(i, at - kAltitudeName, kAltitudeSize);
                return;
            }
        }
    }
}

// Size of a run of base-91 digits that ends in a bar; 0 where it is none, or not two to seven pairs.
std::size_t TelemetrySize(std::string_view text)
{
    std::size_t n = 0;
    while (n < text.size() && n <= kMaxTelemetry && IsBase91(text[n]))
        ++n;
    return n >= 4 && n <= kMaxTelemetry && n % 2 == 0 && n < text.size() && text[n] == '|' ? n : 0;
}

void TakeTelemetry(Comment& comment, PositionReport& report)
{
    for (std::size_t i = 0; i < comment.Count(); ++i) {
        const std::string_view piece = comment[i];
        for (std::size_t at = piece.find('|'); at != std::string_view::npos; at = piece.find('|', at + 1)) {
            if (const std::size_t size = TelemetrySize(piece.substr(at + 1))) {
                report.telemetry = piece.substr(at + 1, size);
                comment.Cut(i, at, size + 2);
                return;
            }
        }
    }
}

// Away from zero, but never beyond the pole or the date line.
void Shift(double& degrees, double minutes, double limit)
{
    degrees = std::clamp(degrees + (degrees < 0 ? -minutes : minutes) * kMinute, -limit, limit);
}

void Shift(Position& position, double latMinutes, double lonMinutes)
{
    Shift(position.latitude, latMinutes, 90.0);
    Shift(position.longitude, lonMinutes, 180.0);
}

// `dao` is "Dxy": thousandths of a minute, or with a small letter 1/91 of a hundredth. Blanks name the datum only.
bool ApplyDao(std::string_view dao, Position& position)
{
    if (IsUpper(dao[0]) && IsDigit(dao[1]) && IsDigit(dao[2])) {
        Shift(position, DigitValue(dao[1]) * 0.001, DigitValue(dao[2]) * 0.001);
        return true;
    }
    if (IsLower(dao[0]) && IsBase91(dao[1]) && IsBase91(dao[2])) {
        Shift(position, Base91Value(dao[1]) / 91.0 * 0.01, Base91Value(dao[2]) / 91.0 * 0.01);
        return true;
    }
    return IsBase91(dao[0]) && dao[1] == ' ' && dao[2] == ' ';
}

// The last one counts.
void TakeDao(Comment& comment, PositionReport& report)
{
    for (std::size_t i = comment.Count(); i-- > 0;) {
        const std::string_view piece = comment[i];
        if (piece.size() < kDaoSize)
            continue;
        std::size_t at = piece.rfind('!', piece.size() - kDaoSize);
        while (at != std::string_view::npos) {
            if (piece[at + 4] == '!' && ApplyDao(piece.substr(at + 1, 3), report.position)) {
                comment.Cut(i, at, kDaoSize);
                return;
            }
            at = at == 0 ? std::string_view::npos : piece.rfind('!', at - 1);
        }
    }
}

// Three base-91 digits and a brace: metres, offset by 10,000.
std::optional<double> MicEAltitude(const char* text)
{
    if (!IsBase91(text[0]) || !IsBase91(text[1]) || !IsBase91(text[2]) || text[3] != '}')
        return std::nullopt;
    const int value = (Base91Value(text[0]) * 91 + Base91Value(text[1])) * 91 + Base91Value(text[2]);
    return (value - 10000) * kFeetPerMetre;
}

void TakeMicEAltitude(Comment& comment, PositionReport& report)
{
    const std::string_view piece = comment[0];
    for (std::size_t at = piece.find('}'); at != std::string_view::npos; at = piece.find('}', at + 1)) {
        if (at + 1 < kMicEAltitudeSize)
            continue;
        if (const auto feet = MicEAltitude(piece.data() + at + 1 - kMicEAltitudeSize)) {
            report.altitude = feet;
            comment.Cut(0, at + 1 - kMicEAltitudeSize, kMicEAltitudeSize);
            return;
        }
    }
}

// Takes an altitude at the front, where most stand, off the text. Returns the marks of what may still be in it.
unsigned TakeFront(std::string_view& text, bool bMicE, PositionReport& report)
{
    constexpr unsigned kAll = 0xff;
    if (bMicE && text.size() >= kMicEAltitudeSize) {
        report.altitude = MicEAltitude(text.data());
        text.remove_prefix(report.altitude ? kMicEAltitudeSize : 0);
        return report.altitude ? kAll & ~unsigned{BraceMark} & ~unsigned{EqualsMark} : kAll;
    }
    if (text.size() < kAltitudeSize || !text.starts_with(kAltitude))
        return kAll;
    const auto feet = AltitudeFeet(text.data() + kAltitudeName);
    if (!feet)
        return kAll;
    report.altitude = *feet;
    text.remove_prefix(kAltitudeSize);
    return kAll & ~unsigned{EqualsMark};
}

// What is found by its mark, and the blanks around what is left.
[[gnu::noinline]] void TakeMarked(CommentMarks marks, PositionReport& report)
{
    const bool bMicE = report.position.form == PositionForm::MicE;
    if ((marks & BraceMark) != 0)
        TakeMicEAltitude(report.comment, report);
    if ((marks & EqualsMark) != 0 && !(bMicE && report.altitude))
        TakeAltitude(report.comment, report);
    if ((marks & BarMark) != 0)
        TakeTelemetry(report.comment, report);
    if ((marks & BangMark) != 0)
        TakeDao(report.comment, report);
    if ((marks & ReachMark) != 0 && !report.reach)
        TakeReach(report);
    report.comment.Tidy();
}

} // namespace

void ParseComment(std::string_view text, PositionReport& report)
{
    const bool bMicE = report.position.form == PositionForm::MicE;
    const unsigned others = TakeFront(text, bMicE, report);
    if (text.empty())
        return;
    const auto marks = static_cast<CommentMarks>(FindMarks(text, bMicE) & others);
    if (marks == NoMarks)
        return report.comment.Assign(Comment::Tidied(text));
    report.comment.Assign(text);
    TakeMarked(marks, report);
}

} // namespace ruvenmark::aprs
