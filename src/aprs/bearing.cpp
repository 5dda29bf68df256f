#include "aprs/bearing.h"

#include "aprs/text.h"

#include <array>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kBearingSize = 7;
constexpr std::array<std::int32_t, 10> kAccuracy = {0, 240, 120, 64, 32, 16, 8, 4, 2, 1};

} // namespace

std::optional<Bearing> FindBearing(const PositionReport& report)
{
    const Symbol symbol = report.position.symbol;
    if (symbol.table != '/' || symbol.code != '\\' || report.comment.IsEmpty())
        return std::nullopt;
    const std::string_view text = report.comment[0];
    if (text.size() < kBearingSize || text[3] != '/' || !AllDigits(text.substr(4, 3)))
        return std::nullopt;
    const auto degrees = ParseDigits(text.substr(0, 3));
    if (!degrees || *degrees > 360)
        return std::nullopt;
    return Bearing{*degrees, DigitValue(text[4]), 1 << DigitValue(text[5]),
                   kAccuracy[static_cast<std::size_t>(DigitValue(text[6]))]};
}

} // namespace ruvenmark::aprs
