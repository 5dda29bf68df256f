#include "aprs/comment_telemetry.h"

#include "aprs/text.h"

namespace ruvenmark::aprs {

CommentTelemetry ReadCommentTelemetry(std::string_view digits)
{
    constexpr int kEightBits = 0xff;
    const auto pair = [&](std::size_t place) -> std::optional<std::int32_t> {
        const std::size_t at = 2 * place;
        if (at + 2 > digits.size())
            return std::nullopt;
        return Base91Value(digits[at]) * 91 + Base91Value(digits[at + 1]);
    };
    CommentTelemetry telemetry;
    telemetry.sequence = pair(0).value_or(0);
    for (std::size_t i = 0; i < telemetry.values.size(); ++i)
        telemetry.values[i] = pair(1 + i);
    if (const auto bits = pair(1 + telemetry.values.size()))
        telemetry.bits = *bits & kEightBits;
    return telemetry;
}

} // namespace ruvenmark::aprs
