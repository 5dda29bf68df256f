#include "aprs/messaging.h"

#include <string_view>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kRadioByte = 9; // Behind type and body of Mic-E.

// Radios with a keyboard tell it by the byte behind the symbol.
bool IsRadioWithKeys(std::string_view info)
{
    if (info.size() <= kRadioByte)
        return false;
    const char c = info[kRadioByte];
    return c == '>' || c == ']' || c == '`';
}

} // namespace

bool TakesMessages(const Packet& packet)
{
    const auto* const report = std::get_if<PositionReport>(&packet.body);
    if (report == nullptr)
        return false;
    if (report->position.form == PositionForm::MicE)
        return IsRadioWithKeys(packet.info);
    return packet.info.front() == '=' || packet.info.front() == '@';
}

} // namespace ruvenmark::aprs
