#include "aprs/destination_device.h"
#include "aprs/device_table.h"

#include <gtest/gtest.h>

#include <string>

namespace ruvenmark::aprs {
namespace {

// A destination that the pattern stands for, as far from its letters as it may be.
std::string Sample(std::string_view pattern)
{
    std::string sample;
    for (const char c : pattern)
        if (c != '*')
            sample += c == '?' ? '~' : c == 'n' ? '0' : c;
    return sample;
}

// The look-up searches by prefix: a table out of order hides devices without a word.
TEST(DestinationDevice, EveryPatternIsFoundByWhatItStandsFor)
{
    const auto devices = DestinationDevices();
    ASSERT_GT(devices.size(), 300U);
    for (const DestinationDevice& device : devices) {
        EXPECT_EQ(device.pattern.substr(0, device.prefixSize).find_first_of("?n*"), std::string_view::npos);
        EXPECT_EQ(DestinationDeviceName(Sample(device.pattern)), device.name) << device.pattern;
    }
}

// A byte short of its pattern, or one more, is none.
TEST(DestinationDevice, TheLongestBeginningWins)
{
    const std::pair<const char*, const char*> kDestinations[] = {
        {"APZ", "Experimental"},
        {"APZ18", "IW3FQG UIdigi"},
        {"APZ186", "IW3FQG UIdigi"},
        {"APZ187", "Experimental"},
        {"AP123U", "Painter Engineering: uSmartDigi Digipeater"},
        {"AP12AU", ""},
        {"APAF1", ""},
        {"APAF123", ""},
        {"APAF12-11", "AFilter"},
        {"apaf12", ""},
        {"", ""},
        {"-7", ""}};
    for (const auto& [destination, name] : kDestinations)
        EXPECT_EQ(DestinationDeviceName(destination), name) << destination;
}

} // namespace
} // namespace ruvenmark::aprs
