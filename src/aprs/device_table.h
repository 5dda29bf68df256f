#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ruvenmark::aprs {

// A destination that programs and trackers send under: `?` stands for any byte, `n` for a digit, `*` for any end.
struct DestinationDevice {
    std::string_view pattern;
    std::uint8_t prefixSize; // Bytes in front of the first that stands for others.
    std::string_view name;
};

// The two bytes with which a Mic-E text ends.
struct MicEDevice {
    char first, last;
    std::string_view name;
};

// By prefix; of one prefix the most telling pattern first.
std::span<const DestinationDevice> DestinationDevices();
std::span<const MicEDevice> MicEDevices();

} // namespace ruvenmark::aprs
