#include "aprs/message.h"

#include "aprs/text.h"

#include <algorithm>
#include <array>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kAddresseeSize = 9;
constexpr std::size_t kMinCall = 3;
constexpr std::size_t kMaxNumber = 5;
constexpr std::size_t kAckWord = 3;
constexpr std::array<std::string_view, 4> kDefinitions = {"PARM.", "UNIT.", "EQNS.", "BITS."};

constexpr auto kAddresseeBytes = [] {
    std::array<bool, 256> table{};
    for (std::size_t c = 0; c < table.size(); ++c) {
        const char byte = static_cast<char>(c);
        table[c] = IsAlnum(byte) || byte == ' ' || byte == '-' || byte == '_';
    }
    return table;
}();

bool IsAddresseeByte(char c)
{
    return kAddresseeBytes[static_cast<unsigned char>(c)];
}

bool AllAlnum(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), IsAlnum);
}

bool IsNumber(std::string_view text)
{
    return !text.empty() && text.size() <= kMaxNumber && AllAlnum(text);
}

// "ack" or "rej" and a number; a reply-acknowledgement's tail ("MM}AA") is no part of the number.
std::string_view NumberBehindWord(std::string_view text)
{
    const std::string_view tail = TrimRight(text.substr(kAckWord));
    if (tail.size() > kMaxNumber)
        return {};
    const std::size_t brace = tail.find('}');
    const std::string_view number = tail.substr(0, brace);
    const bool bGoodTail = brace == std::string_view::npos || AllAlnum(tail.substr(brace + 1));
    return IsNumber(number) && bGoodTail ? number : std::string_view();
}

// A number at the end: "{12" or, from those who acknowledge with their replies, "{MM}AA" or "{MM}".
void TakeNumber(Message& message)
{
    const std::size_t at = message.text.rfind('{');
    if (at == std::string_view::npos)
        return;
    const std::string_view tail = TrimRight(message.text.substr(at + 1));
    const std::size_t brace = tail.find('}');
    const std::string_view number = tail.substr(0, brace);
    if (!IsNumber(number))
        return;
    if (brace != std::string_view::npos) {
        const std::string_view ack = tail.substr(brace + 1);
        if (ack.size() > kMaxNumber || !AllAlnum(ack))
            return;
        message.ack = ack;
    }
    message.id = number;
    message.text = message.text.substr(0, at);
}

MessageKind KindOf(const Message& message)
{
    if (message.addressee.starts_with("BLN"))
        return MessageKind::Bulletin;
    const std::string_view word = message.text.substr(0, 5);
    const bool bDefinition = std::find(kDefinitions.begin(), kDefinitions.end(), word) != kDefinitions.end();
    return bDefinition ? MessageKind::TelemetryDefinition : MessageKind::Text;
}

// Where the colon behind the addressee stands: behind nine bytes, or right behind a call that nobody padded.
std::size_t AddresseeSize(std::string_view text)
{
    if (text.size() > kAddresseeSize && text[kAddresseeSize] == ':')
        return kAddresseeSize;
    const std::size_t colon = text.substr(0, kAddresseeSize).find(':');
    const bool bCall = colon != std::string_view::npos && colon >= kMinCall &&
                       TrimRight(text.substr(0, colon)).find(' ') == std::string_view::npos;
    return bCall ? colon : 0;
}

// "ack" or "rej" and the number it is about; some put a number of their own behind it.
bool TakeReply(Message& message)
{
    const bool bAck = message.text.starts_with("ack");
    if (!bAck && !message.text.starts_with("rej"))
        return false;
    const std::string_view reply = message.text.substr(0, message.text.find('{'));
    const std::string_view number = NumberBehindWord(reply);
    const std::string_view tail = TrimRight(message.text.substr(reply.size()));
    if (number.empty() || (!tail.empty() && !IsNumber(tail.substr(1))))
        return false;
    message.kind = bAck ? MessageKind::Acknowledgement : MessageKind::Rejection;
    (bAck ? message.ack : message.rejected) = number;
    message.id = tail.substr(tail.empty() ? 0 : 1);
    message.text = {};
    return true;
}

} // namespace

Refusal ParseMessage(std::string_view text, Message& message)
{
    const std::size_t size = AddresseeSize(text);
    if (size == 0 || text.size() < size + 2)
        return Refusal::BadMessage;
    const std::string_view addressee = text.substr(0, size);
    if (!std::all_of(addressee.begin(), addressee.end(), IsAddresseeByte))
        return Refusal::BadMessage;
    message.addressee = TrimRight(addressee);
    message.text = text.substr(size + 1);
    if (TakeReply(message))
        return Refusal::None;
    message.kind = KindOf(message);
    TakeNumber(message);
    return Refusal::None;
}

} // namespace ruvenmark::aprs
