#include "core/settings.h"
#include "platform/failure.h"
#include "platform/settings_store.h"

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

std::string Keys(const Dictionary<std::string>& values)
{
    std::string keys;
    for (const auto& [key, value] : values)
        keys += key + " ";
    return keys;
}

TEST(Settings, AreFortySixInTheirOrderWithTheirDefaults)
{
    SettingsState settings;
    LoadSettings(settings, MemorySettingsStore());
    EXPECT_EQ(
        Keys(settings.values),
        "Call Dest Path Symbol ShowRFNames ShowTCPNames All PositionInt WeatherInt Lat Lon Alt Speed Course Power "
        "Height Gain Directivity Comment WindDir WindSpeed Gust Temperature Rain1 Rain24 Rain12 Humidity Pressure "
        "ReceiveBulletin MatchSSID PlayAll PlayTrack MessageSubnet WaveFile TrackWaveFile DefaultMap TNCLog "
        "TCPLog LogTcpData TrackLineSize TrackLineStyle MobileColor Tactical BeaconTactical DestLat DestLon ");
    for (const auto& [key, text] :
         {std::pair("Call", ""), std::pair("Dest", "100"), std::pair("Path", "WIDE2-2"), std::pair("Symbol", "-1"),
          std::pair("ShowRFNames", "1"), std::pair("All", "0"), std::pair("WeatherInt", "-1"),
          std::pair("MobileColor", "1"), std::pair("BeaconTactical", "False"), std::pair("DestLon", "")})
        EXPECT_EQ(SettingText(settings, key), text) << key;
    EXPECT_TRUE(SettingBool(settings, "ReceiveBulletin"));
    EXPECT_TRUE(SettingBool(settings, "LogTcpData"));
    EXPECT_EQ(SettingInt32(settings, "TrackLineSize"), 1);
}

TEST(Settings, LoadOverwritesAndSaveWritesAll)
{
    MemorySettingsStore store;
    store.Set("Call", "N0CALL");
    store.Set("Dest", "");
    SettingsState settings;
    SetSetting(settings, "Call", "OLD");
    LoadSettings(settings, store);
    EXPECT_EQ(SettingText(settings, "Call"), "N0CALL");
    EXPECT_EQ(SettingText(settings, "Dest"), ""); // Stored, so no default.
    SetSetting(settings, "Comment", "töxt\n");
    SaveSettings(settings, store);
    EXPECT_EQ(store.Values().Count(), 46U);
    EXPECT_EQ(store.Get("Comment", ""), "töxt\n");
}

TEST(Settings, WhatWasNeverLoadedIsNeverSaved)
{
    MemorySettingsStore store;
    store.Set("Call", "N0CALL");
    SettingsState settings;
    SetSetting(settings, "Call", "");
    SaveSettings(settings, store);
    EXPECT_EQ(store.Get("Call", ""), "N0CALL");
}

TEST(Settings, UnusableValuesFailInTheirReader)
{
    SettingsState settings;
    SetSetting(settings, "Text", "abc");
    SetSetting(settings, "Big", "3000000000");
    SetSetting(settings, "Yes", "tRUE");
    SetSetting(settings, "Old", "-1");
    EXPECT_THROW(SettingInt32(settings, "Text"), Failure);
    EXPECT_THROW(SettingBool(settings, "Text"), Failure);
    EXPECT_THROW(SettingInt32(settings, "Big"), Failure);
    EXPECT_THROW(SettingInt32(settings, "Unset"), Failure);
    EXPECT_EQ(SettingText(settings, "Unset"), "");
    EXPECT_TRUE(SettingBool(settings, "Yes"));
    EXPECT_TRUE(SettingBool(settings, "Old"));
}

} // namespace
} // namespace ruvenmark
