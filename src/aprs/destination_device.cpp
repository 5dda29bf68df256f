#include "aprs/destination_device.h"

#include "aprs/device_table.h"
#include "aprs/text.h"

#include <algorithm>

namespace ruvenmark::aprs {

namespace {

std::string_view PrefixOf(const DestinationDevice& device)
{
    return device.pattern.substr(0, device.prefixSize);
}

bool Fits(std::string_view pattern, std::string_view dest)
{
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        if (c == '*')
            return true;
        if (i == dest.size() || (c == 'n' ? !IsDigit(dest[i]) : c != '?' && c != dest[i]))
            return false;
    }
    return pattern.size() == dest.size();
}

} // namespace

std::string_view DestinationDeviceName(std::string_view dest)
{
    dest = WithoutSsid(dest);
    const auto devices = DestinationDevices();
    const auto isBefore = [](const DestinationDevice& device, std::string_view prefix) {
        return PrefixOf(device) < prefix;
    };
    for (std::size_t size = dest.size() + 1; size-- > 0;) {
        const std::string_view prefix = dest.substr(0, size);
        auto device = std::lower_bound(devices.begin(), devices.end(), prefix, isBefore);
        for (; device != devices.end() && PrefixOf(*device) == prefix; ++device)
            if (Fits(device->pattern, dest))
                return device->name;
    }
    return {};
}

} // namespace ruvenmark::aprs
