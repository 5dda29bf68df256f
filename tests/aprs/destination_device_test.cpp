#include "aprs/destination_device.h"
#include "aprs/device_table.h"

#include <gtest/gtest.h>

#include <algorithm>
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

TEST(DestinationDevice, TheLongestBeginningWins)
{
    EXPECT_EQ(DestinationDeviceName("APZ999"), "Experimental");
    EXPECT_EQ(DestinationDeviceName("APZ"), "Experimental");
    EXPECT_EQ(DestinationDeviceName("APZ18"), "IW3FQG UIdigi");
    EXPECT_EQ(DestinationDeviceName("APZ186"), "IW3FQG UIdigi");
    EXPECT_EQ(DestinationDeviceName("APZ187"), "Experimental");
    EXPECT_EQ(DestinationDeviceName("AP123U"), "Painter Engineering: uSmartDigi Digipeater");
    EXPECT_EQ(DestinationDeviceName("AP12AU"), "");
    EXPECT_EQ(DestinationDeviceName("APAF1"), "") << "a byte short of its pattern";
    EXPECT_EQ(DestinationDeviceName("APAF123"), "") << "a byte more than its pattern";
    EXPECT_EQ(DestinationDeviceName("APAF12-11"), "AFilter");
    EXPECT_EQ(DestinationDeviceName("apaf12"), "");
    EXPECT_EQ(DestinationDeviceName(""), "");
    EXPECT_EQ(DestinationDeviceName("-7"), "");
}

} // namespace
} // namespace ruvenmark::aprs
