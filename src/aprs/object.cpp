#include "aprs/object.h"

#include "aprs/position_report.h"
#include "aprs/text.h"
#include "aprs/time_stamp.h"

#include <algorithm>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kNameSize = 9;
constexpr std::size_t kMinItemName = 3;
constexpr char kDead = '_';
constexpr std::string_view kPermanent = "111111z";

// Control characters are a sign of a broken frame; letters beyond ASCII are not.
bool IsNameByte(char c)
{
    return !IsBetween(c, 0, 0x1f) && c != 0x7f;
}

bool IsName(std::string_view name)
{
    for (const char c : name)
        if (!IsNameByte(c))
            return false;
    return true;
}

} // namespace

Refusal ParseObject(std::string_view text, ObjectReport& object)
{
    if (text.size() <= kNameSize + 1 + kTimeSize)
        return Refusal::BadObject;
    const std::string_view name = text.substr(0, kNameSize);
    const char state = text[kNameSize];
    if (!IsName(name) || (state != '*' && state != kDead))
        return Refusal::BadObject;
    object.name = TrimRight(name);
    object.bAlive = state != kDead;
    const Refusal refusal = ParseTimedPosition(text.substr(kNameSize + 1), object.report);
    if (object.report.time.text == kPermanent)
        object.report.time.form = TimeForm::Permanent;
    return refusal;
}

Refusal ParseItem(std::string_view text, ObjectReport& object)
{
    const std::string_view front = text.substr(0, kNameSize + 1);
    const auto state = std::find_if(front.begin(), front.end(), [](char c) { return c == '!' || c == kDead; });
    const auto size = static_cast<std::size_t>(state - front.begin());
    if (state == front.end() || size < kMinItemName || !IsName(text.substr(0, size)))
        return Refusal::BadItem;
    object.name = TrimRight(text.substr(0, size));
    object.bItem = true;
    object.bAlive = text[size] != kDead;
    return ParsePositionReport(text.substr(size + 1), object.report);
}

} // namespace ruvenmark::aprs
