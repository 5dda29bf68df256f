#include "core/number_rule.h"

#include "platform/failure.h"
#include "platform/numbers.h"

namespace ruvenmark {

bool Fits(std::string_view text, const NumberRule& rule)
{
    if (text.empty())
        return true;
    try {
        const double value = rule.kind == NumberRule::Kind::Whole ? ToInt32(text) : ToDouble(text);
        return value >= rule.lowest && value <= rule.highest;
    } catch (const Failure&) {
        return false;
    }
}

std::optional<std::string> CheckNumber(std::string& text, const NumberRule& rule)
{
    if (Fits(text, rule))
        return std::nullopt;
    text = rule.reset;
    return std::string(rule.message);
}

} // namespace ruvenmark
