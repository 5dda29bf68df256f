#include "aprs/mic_e.h"

#include "aprs/comment_extras.h"
#include "aprs/mic_e_device.h"
#include "aprs/plain_position.h"
#include "aprs/text.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kDestSize = 6;
constexpr std::size_t kBodySize = 8;
constexpr int kOffset = 28; // Added to each figure of the body to make it printable.
constexpr int kMaxBlanks = 4;
constexpr std::size_t kMessageBits = 3;

// By the three message bits: 7 is the first. The second half stands for the custom messages.
constexpr std::array<std::string_view, 8> kStandard = {"Emergency", "Priority",   "Special",  "Committed",
                                                       "Returning", "In Service", "En Route", "Off Duty"};
constexpr std::array<std::string_view, 8> kCustom = {"Emergency", "Custom-6", "Custom-5", "Custom-4",
                                                     "Custom-3",  "Custom-2", "Custom-1", "Custom-0"};

// What a byte of the destination stands for: a digit of the latitude, a bit of the message, a side of the world.
struct DestByte {
    std::uint8_t digit = kNone;
    bool bHigh : 1 = false;   // A bit of a standard message; north, a hundred more, west.
    bool bCustom : 1 = false; // A bit of a custom message; only in front.

    static constexpr std::uint8_t kBlank = 10;
    static constexpr std::uint8_t kNone = 11;
};

constexpr auto kDestBytes = MakeByteTable([](char c) {
    const auto digit = [&](char zero) { return static_cast<std::uint8_t>(c - zero); };
    if (IsDigit(c))
        return DestByte{digit('0'), false, false};
    if (IsBetween(c, 'A', 'J'))
        return DestByte{digit('A'), false, true};
    if (IsBetween(c, 'P', 'Y'))
        return DestByte{digit('P'), true, false};
    if (c == 'K' || c == 'L' || c == 'Z')
        return DestByte{DestByte::kBlank, c == 'Z', c == 'K'};
    return DestByte{};
});

using DestBytes = std::array<DestByte, kDestSize>;

DestBytes LookUp(std::string_view dest)
{
    DestBytes bytes;
    for (std::size_t i = 0; i < kDestSize; ++i)
        bytes[i] = kDestBytes[static_cast<unsigned char>(dest[i])];
    return bytes;
}

struct Latitude {
    int degrees = 0;
    int hundredths = 0; // Of a minute.
    int blanks = 0;
};

Refusal ParseLatitude(const DestBytes& dest, Latitude& latitude)
{
    std::array<int, kDestSize> digits{};
    for (std::size_t i = 0; i < kDestSize; ++i) {
        if (dest[i].digit == DestByte::kNone || (i >= kMessageBits && dest[i].bCustom))
            return Refusal::BadMicEDestination;
        if (dest[i].digit == DestByte::kBlank)
            ++latitude.blanks;
        else if (latitude.blanks > 0)
            return Refusal::BlanksMisplaced;
        else
            digits[i] = dest[i].digit;
    }
    if (latitude.blanks > kMaxBlanks)
        return Refusal::BlanksMisplaced;
    latitude.degrees = digits[0] * 10 + digits[1];
    latitude.hundredths = ((digits[2] * 10 + digits[3]) * 10 + digits[4]) * 10 + digits[5];
    return Refusal::None;
}

std::string_view MessageText(const DestBytes& dest)
{
    unsigned standard = 0;
    unsigned custom = 0;
    for (std::size_t i = 0; i < kMessageBits; ++i) {
        standard = standard << 1U | static_cast<unsigned>(dest[i].bHigh);
        custom = custom << 1U | static_cast<unsigned>(dest[i].bCustom);
    }
    if (standard != 0 && custom != 0)
        return "Unknown";
    return custom != 0 ? kCustom[custom] : kStandard[standard];
}

bool IsBody(std::string_view body)
{
    constexpr char kLow = 0x1c;
    constexpr char kHigh = 0x7f;
    return IsBetween(body[0], 0x26, kHigh) && IsBetween(body[1], 0x26, 0x61) && IsBetween(body[2], kLow, kHigh) &&
           IsBetween(body[3], kLow, kHigh) && IsBetween(body[4], kLow, 0x7d) && IsBetween(body[5], kLow, kHigh) &&
           IsSymbolCode(body[6]);
}

int Figure(char c)
{
    return static_cast<unsigned char>(c) - kOffset;
}

// Whole digits of the minutes' hundredths that are not blank; the last ones become 0.
int DropDigits(int hundredths, int blanks)
{
    static constexpr std::array<int, 5> kSteps = {1, 10, 100, 1000, 10000};
    if (blanks == 0)
        return hundredths;
    const int step = kSteps[static_cast<std::size_t>(blanks)];
    return hundredths / step * step;
}

double ParseLongitude(std::string_view body, bool bHundred, int blanks)
{
    int degrees = Figure(body[0]) + (bHundred ? 100 : 0);
    if (degrees >= 180 && degrees <= 189)
        degrees -= 80;
    else if (degrees >= 190)
        degrees -= 190;
    const int minutes = Figure(body[1]) >= 60 ? Figure(body[1]) - 60 : Figure(body[1]);
    const int hundredths = DropDigits(minutes * 100 + Figure(body[2]), blanks);
    return MiddleAngle(degrees, hundredths, blanks);
}

void ParseSpeedCourse(std::string_view body, PositionReport& report)
{
    const int middle = Figure(body[4]);
    int speed = Figure(body[3]) * 10 + middle / 10;
    int course = middle % 10 * 100 + Figure(body[5]);
    speed = speed >= 800 ? speed - 800 : speed;
    course = course >= 400 ? course - 400 : course;
    report.speed = speed;
    if (course >= 1 && course <= 360)
        report.course = course;
}

} // namespace

Refusal ParseMicE(std::string_view dest, std::string_view body, PositionReport& report)
{
    dest = WithoutSsid(dest);
    if (dest.size() != kDestSize)
        return Refusal::BadMicEDestination;
    if (body.size() < kBodySize)
        return Refusal::PositionTooShort;
    if (!IsBody(body))
        return Refusal::BadMicE;
    if (!IsSymbolTable(body[7]))
        return Refusal::BadSymbolTable;
    const DestBytes destBytes = LookUp(dest);
    Latitude latitude;
    if (const Refusal refusal = ParseLatitude(destBytes, latitude); refusal != Refusal::None)
        return refusal;
    const auto degrees = AngleWithin(90, latitude.degrees, latitude.hundredths, latitude.blanks);
    const double longitude = ParseLongitude(body, destBytes[4].bHigh, latitude.blanks);
    if (!degrees || longitude > 180.0)
        return Refusal::PositionOutOfRange;
    report.position = {destBytes[3].bHigh ? *degrees : -*degrees,
                       destBytes[5].bHigh ? -longitude : longitude,
                       {body[7], body[6]},
                       PositionForm::MicE,
                       static_cast<std::uint8_t>(latitude.blanks)};
    report.micEStatus = MessageText(destBytes);
    ParseSpeedCourse(body, report);
    ParseComment(TakeDevice(body.substr(kBodySize), report.device), report);
    return Refusal::None;
}

} // namespace ruvenmark::aprs
