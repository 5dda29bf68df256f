#include "devices/ax25.h"

#include "aprs/text.h"
#include "platform/failure.h"

#include <vector>

namespace ruvenmark {

namespace {

constexpr std::size_t kCallSize = 6;
constexpr std::size_t kAddressSize = kCallSize + 1; // The last byte has the station's number and the marks.
constexpr std::size_t kMaxDigipeaters = 8;
constexpr std::size_t kMaxInfo = 256;

constexpr unsigned kLastAddress = 0x01;
constexpr unsigned kReserved = 0x60; // Set, unless a network says otherwise.
constexpr unsigned kMark = 0x80;     // Of a digipeater: has repeated it. Of the destination: a command.
constexpr unsigned kPollFinal = 0x10;
constexpr unsigned kUi = 0x03;
constexpr unsigned kNoNetworkLayer = 0xF0;

unsigned Byte(char c)
{
    return static_cast<unsigned char>(c);
}

struct Address {
    std::string call;
    bool bMark = false;
    bool bLast = false;
};

// Nothing for a call that could not stand in a packet line.
std::optional<Address> ReadAddress(std::string_view bytes)
{
    Address address;
    bool bPadding = false;
    for (const char shifted : bytes.substr(0, kCallSize)) {
        if ((Byte(shifted) & 1U) != 0)
            return std::nullopt;
        const char c = static_cast<char>(Byte(shifted) >> 1U);
        bPadding = bPadding || c == ' ';
        if (bPadding ? c != ' ' : !aprs::IsAlnum(c))
            return std::nullopt;
        if (!bPadding)
            address.call += c;
    }
    const unsigned last = Byte(bytes[kCallSize]);
    if (const unsigned number = last >> 1U & 0x0FU; number != 0)
        address.call += '-' + std::to_string(number);
    address.bMark = (last & kMark) != 0;
    address.bLast = (last & kLastAddress) != 0;
    return address.call.empty() || bytes[0] == static_cast<char>(' ' << 1) ? std::nullopt : std::optional(address);
}

// Takes the addresses off the front of the frame, destination first.
std::optional<std::vector<Address>> TakeAddresses(std::string_view& frame)
{
    std::vector<Address> addresses;
    while (frame.size() >= kAddressSize && addresses.size() < kMaxDigipeaters + 2) {
        auto address = ReadAddress(frame.substr(0, kAddressSize));
        if (!address)
            return std::nullopt;
        frame.remove_prefix(kAddressSize);
        addresses.push_back(std::move(*address));
        if (addresses.back().bLast)
            return addresses.size() >= 2 ? std::optional(std::move(addresses)) : std::nullopt;
    }
    return std::nullopt;
}

[[noreturn]] void RefuseCall(std::string_view call)
{
    throw Failure("no call of packet radio: " + std::string(call));
}

void AppendAddress(std::string& frame, std::string_view address, unsigned marks)
{
    const std::string_view call = address.substr(0, address.find('-'));
    if (call.empty() || call.size() > kCallSize)
        RefuseCall(address);
    for (std::size_t i = 0; i < kCallSize; ++i) {
        const char c = i < call.size() ? aprs::ToUpper(call[i]) : ' ';
        if (i < call.size() && !aprs::IsAlnum(c))
            RefuseCall(address);
        frame += static_cast<char>(Byte(c) << 1U);
    }
    unsigned number = 0;
    if (call.size() < address.size()) {
        const auto given = aprs::ParseDigits(address.substr(call.size() + 1));
        if (!given || *given > 15)
            RefuseCall(address);
        number = static_cast<unsigned>(*given);
    }
    frame += static_cast<char>(marks | kReserved | number << 1U);
}

} // namespace

std::optional<std::string> ReadUiFrame(std::string_view frame)
{
    const auto addresses = TakeAddresses(frame);
    if (!addresses || frame.size() < 2 || (Byte(frame[0]) & ~kPollFinal) != kUi || Byte(frame[1]) != kNoNetworkLayer)
        return std::nullopt;
    std::size_t lastRepeated = 0;
    for (std::size_t i = 2; i < addresses->size(); ++i)
        if ((*addresses)[i].bMark)
            lastRepeated = i;
    std::string line = (*addresses)[1].call + '>' + (*addresses)[0].call;
    for (std::size_t i = 2; i < addresses->size(); ++i) {
        line += ',' + (*addresses)[i].call;
        if (i == lastRepeated)
            line += '*';
    }
    line += ':';
    return line.append(frame.substr(2));
}

std::string MakeUiFrame(std::string_view source, std::string_view dest, std::string_view via, std::string_view info)
{
    if (info.size() > kMaxInfo)
        throw Failure("too long for one packet");
    std::string frame;
    AppendAddress(frame, dest, kMark);
    AppendAddress(frame, source, 0);
    std::size_t digipeaters = 0;
    for (std::size_t at = 0; (at = via.find_first_not_of(", ")) != std::string_view::npos;) {
        via.remove_prefix(at);
        const std::string_view call = via.substr(0, via.find_first_of(", "));
        if (++digipeaters > kMaxDigipeaters)
            throw Failure("too many digipeaters");
        AppendAddress(frame, call, 0);
        via.remove_prefix(call.size());
    }
    frame.back() = static_cast<char>(Byte(frame.back()) | kLastAddress);
    frame += static_cast<char>(kUi);
    frame += static_cast<char>(kNoNetworkLayer);
    return frame.append(info);
}

} // namespace ruvenmark
