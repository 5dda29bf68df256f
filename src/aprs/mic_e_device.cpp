#include "aprs/mic_e_device.h"

#include "aprs/device_table.h"
#include "aprs/text.h"

#include <algorithm>
#include <array>

namespace ruvenmark::aprs {

namespace {

struct Kenwood {
    std::string_view suffix;
    std::string_view name;
};

// Radios with one byte in front and at most one behind. The empty suffix stands last: it fits all.
constexpr std::array<Kenwood, 4> kHandhelds = {
    {{"=", "Kenwood TH-D72"}, {"^", "Kenwood TH-D74"}, {"&", "Kenwood TH-D75"}, {"", "Kenwood TH-D7A"}}};
constexpr std::array<Kenwood, 2> kMobiles = {{{"=", "Kenwood TM-D710"}, {"", "Kenwood TM-D700"}}};

constexpr std::size_t kSuffixSize = 2;
constexpr std::string_view kBlankSuffix = "_ "; // Its blank is lost where lines are trimmed.

// Unused memory of the radio behind its text.
std::string_view WithoutPadding(std::string_view text)
{
    while (!text.empty() && (text.back() == '\xff' || IsBlank(text.back())))
        text.remove_suffix(1);
    return text;
}

template <std::size_t size>
std::string_view TakeKenwood(std::string_view text, const std::array<Kenwood, size>& devices, std::string_view& name)
{
    text = WithoutPadding(text);
    for (const Kenwood& device : devices) {
        if (text.ends_with(device.suffix)) {
            name = device.name;
            text.remove_suffix(device.suffix.size());
            break;
        }
    }
    return WithoutPadding(text);
}

// Whether any device's suffix begins so; most texts end otherwise.
bool BeginsSuffix(char c)
{
    static const auto table = MakeByteTable([](char first) {
        const auto devices = MicEDevices();
        return std::any_of(devices.begin(), devices.end(), [&](const MicEDevice& d) { return d.first == first; });
    });
    return table[static_cast<unsigned char>(c)];
}

std::string_view SuffixName(std::string_view suffix)
{
    if (!BeginsSuffix(suffix[0]))
        return {};
    for (const MicEDevice& device : MicEDevices())
        if (device.first == suffix[0] && device.last == suffix[1])
            return device.name;
    return {};
}

// Two bytes at the end, behind a grave accent or an apostrophe in front.
std::string_view TakeOther(std::string_view text, std::string_view& name)
{
    const std::string_view trimmed = TrimRight(text);
    if (trimmed.size() >= kSuffixSize) {
        name = SuffixName(trimmed.substr(trimmed.size() - kSuffixSize));
        if (!name.empty())
            return trimmed.substr(0, trimmed.size() - kSuffixSize);
    }
    if (!trimmed.ends_with(kBlankSuffix.front()))
        return text;
    name = SuffixName(kBlankSuffix);
    return trimmed.substr(0, trimmed.size() - 1);
}

} // namespace

std::string_view TakeDevice(std::string_view text, std::string_view& device)
{
    if (text.empty())
        return text;
    const std::string_view body = text.substr(1);
    switch (text.front()) {
    case '>':
        return TakeKenwood(body, kHandhelds, device);
    case ']':
        return TakeKenwood(body, kMobiles, device);
    case '`':
    case '\'':
        return TakeOther(body, device);
    default:
        return text;
    }
}

} // namespace ruvenmark::aprs
