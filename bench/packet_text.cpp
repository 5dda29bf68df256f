#include "packet_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace ruvenmark::packet_text {

namespace {

constexpr int kHundredths = 6000; // Of a minute, in a degree.
constexpr int kMicEOffset = 28;

// An angle as whole degrees and hundredths of minutes; what is less than a hundredth is cut off, as receivers do.
struct Angle {
    int degrees = 0;
    int hundredths = 0;
    bool bNegative = false;
};

Angle Split(double value)
{
    const int total = static_cast<int>(std::abs(value) * kHundredths + 1e-6);
    return {total / kHundredths, total % kHundredths, value < 0};
}

char Base91(int digit)
{
    return static_cast<char>('!' + digit);
}

std::string Base91Text(std::uint32_t value, int width)
{
    std::string text;
    for (int i = 0; i < width; ++i) {
        text.insert(text.begin(), Base91(static_cast<int>(value % 91)));
        value /= 91;
    }
    return text;
}

char MicEByte(int figure)
{
    return static_cast<char>(figure + kMicEOffset);
}

} // namespace

std::string Join(std::initializer_list<std::string_view> pieces)
{
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

std::string Digits(int value, int width)
{
    const std::string text = std::to_string(value);
    const auto size = static_cast<std::size_t>(width);
    return text.size() < size ? Join({std::string(size - text.size(), '0'), text}) : text;
}

std::string Call(int station)
{
    std::string call = "K";
    for (int i = 0; i < 4; ++i, station /= 26)
        call += static_cast<char>('A' + station % 26);
    return call;
}

std::string PlainPosition(Place place, std::string_view symbol)
{
    const Angle lat = Split(place.lat);
    const Angle lon = Split(place.lon);
    const auto minutes = [](int hundredths) {
        return Join({Digits(hundredths / 100, 2), ".", Digits(hundredths % 100, 2)});
    };
    return Join({Digits(lat.degrees, 2), minutes(lat.hundredths), lat.bNegative ? "S" : "N", symbol.substr(0, 1),
                 Digits(lon.degrees, 3), minutes(lon.hundredths), lon.bNegative ? "W" : "E", symbol.substr(1, 1)});
}

std::string CompressedPosition(Place place, std::string_view symbol, Movement movement)
{
    const bool bDigit = symbol[0] >= '0' && symbol[0] <= '9';
    std::string text(1, bDigit ? static_cast<char>(symbol[0] - '0' + 'a') : symbol[0]);
    text += Base91Text(static_cast<std::uint32_t>((90.0 - place.lat) * 380926.0), 4);
    text += Base91Text(static_cast<std::uint32_t>((180.0 + place.lon) * 190463.0), 4);
    const int speed = static_cast<int>(std::lround(std::log(movement.knots + 1.0) / std::log(1.08)));
    text += symbol[1];
    text += Base91(movement.course / 4 % 90);
    text += Base91(std::min(speed, 90));
    text += 'G'; // A current fix of an RMC sentence.
    return text;
}

std::string CourseSpeed(Movement movement)
{
    return Join({Digits(movement.course, 3), "/", Digits(movement.knots, 3)});
}

std::string Altitude(int feet)
{
    return feet < 0 ? Join({"/A=-", Digits(-feet, 5)}) : Join({"/A=", Digits(feet, 6)});
}

std::string MicEDestination(Place place, int message)
{
    const Angle lat = Split(place.lat);
    const std::string digits = Join({Digits(lat.degrees, 2), Digits(lat.hundredths, 4)});
    const int bits = 7 - message;
    const bool bHundred = std::abs(place.lon) >= 100 || std::abs(place.lon) < 10;
    const std::array<bool, 6> high = {(bits & 4) != 0, (bits & 2) != 0, (bits & 1) != 0,
                                      !lat.bNegative,  bHundred,        place.lon < 0};
    std::string text;
    for (std::size_t i = 0; i < high.size(); ++i)
        text += high[i] ? static_cast<char>(digits[i] - '0' + 'P') : digits[i];
    return text;
}

std::string MicEBody(Place place, std::string_view symbol, Movement movement)
{
    const Angle lon = Split(place.lon);
    int degrees = lon.degrees;
    if (degrees < 10)
        degrees += 90;
    else if (degrees >= 110)
        degrees -= 100;
    else if (degrees >= 100)
        degrees -= 20;
    const int minutes = lon.hundredths / 100;
    const int tens = movement.knots / 10;
    std::string text(1, MicEByte(degrees));
    text += MicEByte(minutes < 10 ? minutes + 60 : minutes);
    text += MicEByte(lon.hundredths % 100);
    text += MicEByte(tens < 20 ? tens + 80 : tens);
    text += MicEByte(movement.knots % 10 * 10 + movement.course / 100 + 4);
    text += MicEByte(movement.course % 100);
    text += symbol[1];
    text += symbol[0];
    return text;
}

std::string MicEAltitude(int metres)
{
    return Join({Base91Text(static_cast<std::uint32_t>(metres + 10000), 3), "}"});
}

std::string CommentTelemetry(int sequence, int first, int second)
{
    const auto pair = [](int value) { return Base91Text(static_cast<std::uint32_t>(value), 2); };
    return Join({"|", pair(sequence), pair(first), pair(second), "|"});
}

std::string Dao(Place place)
{
    const auto digit = [](double value) {
        const double hundredths = std::abs(value) * kHundredths + 1e-6;
        return Base91(static_cast<int>((hundredths - std::floor(hundredths)) * 91));
    };
    return std::string("!w") + digit(place.lat) + digit(place.lon) + '!';
}

} // namespace ruvenmark::packet_text
