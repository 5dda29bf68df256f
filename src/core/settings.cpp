#include "core/settings.h"

#include "platform/numbers.h"
#include "platform/program_name.h"
#include "platform/settings_store.h"

#include <array>

namespace ruvenmark {

namespace {

struct SettingDefault {
    std::string_view key;
    std::string_view value;
};

// In the order in which they are read and written. Dest stands apart: its default is the version.
constexpr std::string_view kDestKey = "Dest";
constexpr std::array<SettingDefault, 46> kDefaults = {{
    {"Call", ""},
    {kDestKey, ""},
    {"Path", "WIDE2-2"},
    {"Symbol", "-1"},
    {"ShowRFNames", "1"},
    {"ShowTCPNames", "1"},
    {"All", "0"},
    {"PositionInt", "-1"},
    {"WeatherInt", "-1"},
    {"Lat", ""},
    {"Lon", ""},
    {"Alt", ""},
    {"Speed", ""},
    {"Course", ""},
    {"Power", ""},
    {"Height", ""},
    {"Gain", ""},
    {"Directivity", ""},
    {"Comment", ""},
    {"WindDir", ""},
    {"WindSpeed", ""},
    {"Gust", ""},
    {"Temperature", ""},
    {"Rain1", ""},
    {"Rain24", ""},
    {"Rain12", ""},
    {"Humidity", ""},
    {"Pressure", ""},
    {"ReceiveBulletin", "True"},
    {"MatchSSID", "True"},
    {"PlayAll", "True"},
    {"PlayTrack", "True"},
    {"MessageSubnet", ""},
    {"WaveFile", ""},
    {"TrackWaveFile", ""},
    {"DefaultMap", ""},
    {"TNCLog", ""},
    {"TCPLog", ""},
    {"LogTcpData", "True"},
    {"TrackLineSize", "1"},
    {"TrackLineStyle", "1"},
    {"MobileColor", "1"},
    {"Tactical", ""},
    {"BeaconTactical", "False"},
    {"DestLat", ""},
    {"DestLon", ""},
}};

std::string VersionDigits()
{
    std::string digits(ProgramVersion());
    std::erase(digits, '.');
    return digits;
}

} // namespace

void LoadSettings(SettingsState& settings, const ISettingsStore& store)
{
    for (const auto& [key, value] : kDefaults)
        settings.values.Set(key, store.Get(key, key == kDestKey ? VersionDigits() : std::string(value)));
    settings.bLoaded = true;
}

void SaveSettings(const SettingsState& settings, ISettingsStore& store)
{
    if (!settings.bLoaded)
        return;
    for (const auto& [key, value] : settings.values)
        store.Set(key, value);
}

std::string_view SettingText(const SettingsState& settings, std::string_view key)
{
    const std::string* value = settings.values.Find(key);
    return value ? std::string_view(*value) : std::string_view();
}

std::int32_t SettingInt32(const SettingsState& settings, std::string_view key)
{
    return ToInt32(SettingText(settings, key));
}

bool SettingBool(const SettingsState& settings, std::string_view key)
{
    return ToBool(SettingText(settings, key));
}

void SetSetting(SettingsState& settings, std::string_view key, std::string_view value)
{
    settings.values.Set(key, std::string(value));
}

} // namespace ruvenmark
