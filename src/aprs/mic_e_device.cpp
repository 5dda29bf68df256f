#include "aprs/mic_e_device.h"

#include "aprs/text.h"

#include <array>

namespace ruvenmark::aprs {

namespace {

struct Device {
    std::string_view suffix;
    std::string_view name;
};

// Radios with one byte in front and at most one behind. The empty suffix stands last: it fits all.
constexpr std::array<Device, 4> kHandhelds = {
    {{"=", "Kenwood TH-D72"}, {"^", "Kenwood TH-D74"}, {"&", "Kenwood TH-D75"}, {"", "Kenwood TH-D7A"}}};
constexpr std::array<Device, 2> kMobiles = {{{"=", "Kenwood TM-D710"}, {"", "Kenwood TM-D700"}}};

// Two bytes at the end, behind a grave accent or an apostrophe in front.
constexpr std::array<Device, 25> kOthers = {{{"_ ", "Yaesu VX-8"},
                                             {"_\"", "Yaesu FTM-350"},
                                             {"_#", "Yaesu VX-8G"},
                                             {"_$", "Yaesu FT1D"},
                                             {"_%", "Yaesu FTM-400DR"},
                                             {"_)", "Yaesu FTM-100D"},
                                             {"_(", "Yaesu FT2D"},
                                             {"_0", "Yaesu FT3D"},
                                             {"_1", "Yaesu FTM-300D"},
                                             {"_2", "Yaesu FTM-200D"},
                                             {"_3", "Yaesu FT5D"},
                                             {"_4", "Yaesu FTM-500D"},
                                             {"_5", "Yaesu FTM-510D"},
                                             {" X", "SainSonic AP510"},
                                             {"(5", "Anytone D578UV"},
                                             {"(8", "Anytone D878UV"},
                                             {"|3", "Byonics TinyTrak3"},
                                             {"|4", "Byonics TinyTrak4"},
                                             {"^v", "HinzTec anyfrog"},
                                             {"*v", "KissOZ Tracker"},
                                             {":4", "SCS P4dragon DR-7400"},
                                             {":8", "SCS P4dragon DR-7800"},
                                             {":2", "SQ8L VP-Tracker"},
                                             {"\\v", "Hamhud"},
                                             {"/9", "Argent"}}};

template <std::size_t size>
std::string_view TakeSuffix(std::string_view text, const std::array<Device, size>& devices, std::string_view& name)
{
    for (const Device& device : devices) {
        if (text.ends_with(device.suffix)) {
            name = device.name;
            text.remove_suffix(device.suffix.size());
            break;
        }
    }
    return text;
}

} // namespace

std::string_view TakeDevice(std::string_view text, std::string_view& device)
{
    if (text.empty())
        return text;
    const std::string_view body = text.substr(1);
    switch (text.front()) {
    case '>':
        return TakeSuffix(body, kHandhelds, device);
    case ']':
        return TakeSuffix(body, kMobiles, device);
    case '`':
    case '\'':
        return TakeSuffix(body, kOthers, device);
    default:
        return text;
    }
}

} // namespace ruvenmark::aprs
