#include "aprs/telemetry.h"

#include "aprs/digit_block.h"
#include "aprs/text.h"

#include <charconv>

namespace ruvenmark::aprs {

namespace {

constexpr double kMaxValue = 2147483648.0;
constexpr std::size_t kMaxBits = 8;
constexpr std::size_t kMaxDigits = 9;

// Digits, or "MIC", with or without a comma behind it.
std::size_t SequenceSize(std::string_view text)
{
    if (text.starts_with("MIC"))
        return 3;
    std::size_t n = 0;
    while (n < text.size() && IsDigit(text[n]))
        ++n;
    return n;
}

// Size of a plain decimal number in front of the text; no exponent.
std::size_t NumberSize(std::string_view text)
{
    std::size_t n = !text.empty() && text[0] == '-' ? 1 : 0;
    bool bDigit = false;
    bool bPoint = false;
    for (; n < text.size(); ++n)
        if (IsDigit(text[n]))
            bDigit = true;
        else if (text[n] == '.' && !bPoint)
            bPoint = true;
        else
            break;
    return bDigit ? n : 0;
}

std::optional<double> ParseNumber(std::string_view text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return error == std::errc() ? std::optional(value) : std::nullopt;
}

void TakeBits(std::string_view text, Telemetry& telemetry)
{
    std::size_t n = 0;
    while (n < text.size() && n < kMaxBits && (text[n] == '0' || text[n] == '1'))
        ++n;
    telemetry.bits = text.substr(0, n);
    telemetry.comment = Trim(text.substr(n));
}

// Takes one value and the comma in front of the next off the text. Returns whether more may follow.
bool TakeValue(std::string_view& text, std::optional<double>& value)
{
    if (const DigitRun run = ReadDigits(text, kMaxDigits); text.substr(run.count).starts_with(',') && run.count > 0) {
        value = run.value;
        text.remove_prefix(run.count + 1);
        return true;
    }
    const std::size_t size = NumberSize(text);
    if (size > 0) {
        value = ParseNumber(text.substr(0, size));
        text.remove_prefix(size);
    }
    if (text.empty() || text.front() != ',')
        return false;
    text.remove_prefix(1);
    return true;
}

} // namespace

Refusal ParseTelemetry(std::string_view text, Telemetry& telemetry)
{
    const std::size_t size = SequenceSize(text);
    telemetry.sequence = text.substr(0, size);
    text.remove_prefix(size);
    const bool bComma = !text.empty() && text.front() == ',';
    if (size == 0 || (!bComma && telemetry.sequence != "MIC"))
        return Refusal::BadTelemetry;
    if (bComma)
        text.remove_prefix(1);
    if (text.empty() || (NumberSize(text) == 0 && text.front() != ','))
        return Refusal::BadTelemetry;
    bool bMore = true;
    for (std::size_t i = 0; bMore && i < telemetry.values.size(); ++i) {
        bMore = TakeValue(text, telemetry.values[i]);
        const auto& value = telemetry.values[i];
        if (value && (*value < -kMaxValue || *value > kMaxValue))
            return Refusal::TelemetryOutOfRange;
    }
    if (bMore)
        TakeBits(text, telemetry);
    return Refusal::None;
}

} // namespace ruvenmark::aprs
