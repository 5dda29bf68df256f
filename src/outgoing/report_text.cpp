#include "outgoing/report_text.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <cmath>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kCodeBase = 48;
constexpr int kLastCode = 255;
constexpr double kHighestLatitude = 90, kHighestLongitude = 180;

void AppendCode(std::string& text, int code)
{
    if (code < 0 || code > kLastCode)
        throw Failure("no character stands for " + std::to_string(code));
    text += static_cast<char>(code);
}

// Degrees in whole numbers and minutes with two decimals; the point is the decimal sign in any locale.
std::string DegreesAndMinutes(double value, std::int16_t degreeWidth, double highest)
{
    constexpr std::int64_t kHundredths = 100;
    const double magnitude = std::abs(value);
    if (!(magnitude <= highest)) // Also for what is no number.
        throw Failure("the place is not on the earth");
    const double degrees = std::trunc(magnitude);
    const auto minutes = static_cast<std::int64_t>(std::nearbyint((magnitude - degrees) * 60 * kHundredths));
    std::string text = Padded(static_cast<std::int64_t>(degrees), degreeWidth);
    text += Padded(minutes / kHundredths, 2);
    text += '.';
    text += Padded(minutes % kHundredths, 2);
    return text;
}

} // namespace

void PadString(std::string& text, std::int16_t width)
{
    while (std::cmp_less(text.size(), width))
        text.insert(text.starts_with('-') ? 1 : 0, 1, '0');
}

std::string Padded(std::string_view text, std::int16_t width)
{
    std::string padded(text);
    PadString(padded, width);
    return padded;
}

std::string Padded(std::int64_t value, std::int16_t width)
{
    return Padded(ShortText(value), width);
}

int PowerCode(std::int16_t power)
{
    int counter = 1;
    while (counter * counter < power)
        ++counter;
    return counter + kCodeBase;
}

int HeightCode(std::int32_t height)
{
    int counter = 0;
    while (10 * std::exp2(counter) < height)
        ++counter;
    return counter + kCodeBase;
}

int DirCode(std::int16_t directivity)
{
    constexpr int kSector = 45;
    int counter = 0;
    while (kSector * counter < directivity)
        ++counter;
    return counter + kCodeBase;
}

std::string LatitudeText(double lat, char symbolTable)
{
    std::string text = DegreesAndMinutes(lat, 2, kHighestLatitude);
    text += lat < 0 ? 'S' : 'N';
    text += symbolTable;
    return text;
}

std::string LongitudeText(double lon)
{
    return DegreesAndMinutes(lon, 3, kHighestLongitude) + (lon < 0 ? 'W' : 'E');
}

std::string PhgText(std::int16_t power, std::int32_t height, std::int16_t gain, std::int16_t directivity)
{
    if (power == 0 || height == 0)
        return {};
    std::string text = "PHG";
    AppendCode(text, PowerCode(power));
    AppendCode(text, HeightCode(height));
    AppendCode(text, gain + kCodeBase);
    AppendCode(text, DirCode(directivity));
    return text;
}

} // namespace ruvenmark
