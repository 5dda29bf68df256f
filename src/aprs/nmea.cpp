#include "aprs/nmea.h"

#include "aprs/destination_symbol.h"
#include "aprs/text.h"

#include <charconv>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kMaxFields = 16;

struct Fields {
    std::array<std::string_view, kMaxFields> texts;
    std::size_t count = 0;
};

Fields Split(std::string_view text)
{
    Fields fields;
    while (fields.count < kMaxFields) {
        const std::size_t comma = text.find(',');
        fields.texts[fields.count++] = text.substr(0, comma);
        if (comma == std::string_view::npos)
            break;
        text.remove_prefix(comma + 1);
    }
    return fields;
}

// Cuts the sentence at a star and two hex digits, and what follows; false where they are not its checksum.
bool TakeChecksum(std::string_view& sentence)
{
    for (std::size_t star = sentence.find('*'); star != std::string_view::npos; star = sentence.find('*', star + 1)) {
        if (sentence.size() - star < 3 || HexValue(sentence[star + 1]) < 0 || HexValue(sentence[star + 2]) < 0)
            continue;
        unsigned sum = 0;
        for (const char c : sentence.substr(1, star - 1))
            sum ^= static_cast<unsigned char>(c);
        const int told = HexValue(sentence[star + 1]) * 16 + HexValue(sentence[star + 2]);
        sentence = sentence.substr(0, star);
        return sum == static_cast<unsigned>(told);
    }
    return true;
}

std::optional<double> ParseNumber(std::string_view text)
{
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    return error == std::errc() && stop == end && !text.empty() ? std::optional(value) : std::nullopt;
}

// "DDMM.mmm" or "DDDMM.mmm" and its hemisphere.
std::optional<double> ParseAngle(std::string_view text, std::string_view side, char positive, char negative,
                                 double limit)
{
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos || point < 3 || point > 5 || side.size() != 1)
        return std::nullopt;
    const auto degrees = ParseDigits(text.substr(0, point - 2));
    const auto minutes = ParseNumber(text.substr(point - 2));
    const char sign = ToUpper(side[0]);
    if (!degrees || !minutes || !IsDigit(text[point - 2]) || *minutes > 60.0 || (sign != positive && sign != negative))
        return std::nullopt;
    const double angle = *degrees + *minutes / 60.0;
    if (angle > limit)
        return std::nullopt;
    return sign == positive ? angle : -angle;
}

// Receivers without the time leave its field empty.
bool IsTime(std::string_view text)
{
    return text.empty() || ParseNumber(text).has_value();
}

Refusal TakePosition(const Fields& fields, std::size_t at, PositionReport& report)
{
    const auto latitude = ParseAngle(fields.texts[at], fields.texts[at + 1], 'N', 'S', 90.0);
    const auto longitude = ParseAngle(fields.texts[at + 2], fields.texts[at + 3], 'E', 'W', 180.0);
    if (!latitude || !longitude)
        return Refusal::BadNmea;
    report.position.latitude = *latitude;
    report.position.longitude = *longitude;
    return Refusal::None;
}

Refusal ParseRmc(const Fields& fields, PositionReport& report)
{
    if (fields.count < 10 || !IsTime(fields.texts[1]))
        return Refusal::BadNmea;
    if (fields.texts[2] != "A")
        return Refusal::NmeaNoFix;
    if (const auto speed = ParseNumber(fields.texts[7]); speed && *speed >= 0)
        report.speed = *speed;
    if (const auto course = ParseNumber(fields.texts[8]); course && *course >= 0 && *course <= 360)
        report.course = *course;
    return TakePosition(fields, 3, report);
}

Refusal ParseGga(const Fields& fields, PositionReport& report)
{
    if (fields.count < 11 || !IsTime(fields.texts[1]))
        return Refusal::BadNmea;
    const auto quality = ParseDigits(fields.texts[6]);
    if (!quality || *quality == 0)
        return Refusal::NmeaNoFix;
    if (const auto altitude = ParseNumber(fields.texts[9]); altitude && fields.texts[10] == "M")
        report.altitude = *altitude * kFeetPerMetre;
    return TakePosition(fields, 2, report);
}

Refusal ParseGll(const Fields& fields, PositionReport& report)
{
    if (fields.count < 5)
        return Refusal::BadNmea;
    if (fields.count >= 7 && fields.texts[6] == "V")
        return Refusal::NmeaNoFix;
    return TakePosition(fields, 1, report);
}

} // namespace

Refusal ParseNmea(std::string_view sentence, std::string_view dest, PositionReport& report)
{
    if (!TakeChecksum(sentence))
        return Refusal::NmeaChecksum;
    const Fields fields = Split(sentence);
    const std::string_view name = fields.texts[0];
    if (name.size() != 6 || !name.starts_with("$G"))
        return Refusal::NmeaUnsupported;
    report.position.form = PositionForm::Nmea;
    report.position.symbol = DestinationSymbol(dest).value_or(Symbol{});
    const std::string_view kind = name.substr(3);
    if (kind == "RMC")
        return ParseRmc(fields, report);
    if (kind == "GGA")
        return ParseGga(fields, report);
    return kind == "GLL" ? ParseGll(fields, report) : Refusal::NmeaUnsupported;
}

} // namespace ruvenmark::aprs
