#include "core/settings.h"

#include "core/stored_settings.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/program_name.h"

namespace ruvenmark {

namespace {

using S = Setting;
using K = SettingKind;

// In the order of Setting.
constexpr std::array kSettings = {
    SettingInfo{S::Call, "Call", K::Text, ""},
    SettingInfo{S::Dest, "Dest", K::Text, ""},
    SettingInfo{S::Path, "Path", K::Text, "WIDE2-2"},
    SettingInfo{S::Symbol, "Symbol", K::Int32, "-1"},
    SettingInfo{S::ShowRFNames, "ShowRFNames", K::Int32, "1"},
    SettingInfo{S::ShowTCPNames, "ShowTCPNames", K::Int32, "1"},
    SettingInfo{S::All, "All", K::Flag, "0"},
    SettingInfo{S::PositionInt, "PositionInt", K::Int32, "-1"},
    SettingInfo{S::WeatherInt, "WeatherInt", K::Int32, "-1"},
    SettingInfo{S::Lat, "Lat", K::Text, ""},
    SettingInfo{S::Lon, "Lon", K::Text, ""},
    SettingInfo{S::Alt, "Alt", K::Text, ""},
    SettingInfo{S::Speed, "Speed", K::Text, ""},
    SettingInfo{S::Course, "Course", K::Text, ""},
    SettingInfo{S::Power, "Power", K::Text, ""},
    SettingInfo{S::Height, "Height", K::Text, ""},
    SettingInfo{S::Gain, "Gain", K::Text, ""},
    SettingInfo{S::Directivity, "Directivity", K::Text, ""},
    SettingInfo{S::Comment, "Comment", K::Text, ""},
    SettingInfo{S::WindDir, "WindDir", K::Text, ""},
    SettingInfo{S::WindSpeed, "WindSpeed", K::Text, ""},
    SettingInfo{S::Gust, "Gust", K::Text, ""},
    SettingInfo{S::Temperature, "Temperature", K::Text, ""},
    SettingInfo{S::Rain1, "Rain1", K::Text, ""},
    SettingInfo{S::Rain24, "Rain24", K::Text, ""},
    SettingInfo{S::Rain12, "Rain12", K::Text, ""},
    SettingInfo{S::Humidity, "Humidity", K::Text, ""},
    SettingInfo{S::Pressure, "Pressure", K::Text, ""},
    SettingInfo{S::ReceiveBulletin, "ReceiveBulletin", K::Flag, "True"},
    SettingInfo{S::MatchSSID, "MatchSSID", K::Flag, "True"},
    SettingInfo{S::PlayAll, "PlayAll", K::Flag, "True"},
    SettingInfo{S::PlayTrack, "PlayTrack", K::Flag, "True"},
    SettingInfo{S::MessageSubnet, "MessageSubnet", K::Text, ""},
    SettingInfo{S::WaveFile, "WaveFile", K::Text, ""},
    SettingInfo{S::TrackWaveFile, "TrackWaveFile", K::Text, ""},
    SettingInfo{S::DefaultMap, "DefaultMap", K::Text, ""},
    SettingInfo{S::TNCLog, "TNCLog", K::Text, ""},
    SettingInfo{S::TCPLog, "TCPLog", K::Text, ""},
    SettingInfo{S::LogTcpData, "LogTcpData", K::Flag, "True"},
    SettingInfo{S::TrackLineSize, "TrackLineSize", K::Int32, "1"},
    SettingInfo{S::TrackLineStyle, "TrackLineStyle", K::Int32, "1"},
    SettingInfo{S::MobileColor, "MobileColor", K::Int32, "1"},
    SettingInfo{S::Tactical, "Tactical", K::Text, ""},
    SettingInfo{S::BeaconTactical, "BeaconTactical", K::Flag, "False"},
    SettingInfo{S::DestLat, "DestLat", K::Text, ""},
    SettingInfo{S::DestLon, "DestLon", K::Text, ""},
    SettingInfo{S::WindowSplit, "WindowSplit", K::Int32, "2000"},
    SettingInfo{S::ShowTreeView, "ShowTreeView", K::Flag, "True"},
    SettingInfo{S::MainLeft, "MainLeft", K::Int32, "1000"},
    SettingInfo{S::MainTop, "MainTop", K::Int32, "1000"},
    SettingInfo{S::MainWidth, "MainWidth", K::Int32, "6500"},
    SettingInfo{S::MainHeight, "MainHeight", K::Int32, "6500"},
    SettingInfo{S::Region, "Region", K::Number, "100"},
    SettingInfo{S::TrackStationPosition, "TrackStationPosition", K::Flag, "True"},
    SettingInfo{S::PrimaryServer, "PrimaryServer", K::Text, ""},
    SettingInfo{S::PrimaryPort, "PrimaryPort", K::Int16, "-1"},
    SettingInfo{S::PrimaryFilter, "PrimaryFilter", K::Text, ""},
    SettingInfo{S::ServerBeacon, "ServerBeacon", K::Flag, "True"},
    SettingInfo{S::AddTCPSymbol, "AddTCPSymbol", K::Flag, "True"},
    SettingInfo{S::ReconnectServer, "ReconnectServer", K::Flag, "False"},
    SettingInfo{S::ReconnectAttempt, "ReconnectAttempt", K::Int16, "0"},
    SettingInfo{S::BackupServer, "BackupServer", K::Text, ""},
    SettingInfo{S::BackupPort, "BackupPort", K::Int16, "-1"},
    SettingInfo{S::BackupFilter, "BackupFilter", K::Text, ""},
    SettingInfo{S::BackupBeacon, "BackupBeacon", K::Flag, "False"},
    SettingInfo{S::AutoTCP, "AutoTCP", K::Flag, "False"},
    SettingInfo{S::rfFilterDest, "rfFilterDest", K::Text, ""},
    SettingInfo{S::rfFilterReject, "rfFilterReject", K::Text, ""},
    SettingInfo{S::rfFilterCall, "rfFilterCall", K::Text, ""},
    SettingInfo{S::rfFilterRange, "rfFilterRange", K::Text, ""},
    SettingInfo{S::rfFilterLat, "rfFilterLat", K::Text, ""},
    SettingInfo{S::rfFilterLon, "rfFilterLon", K::Text, ""},
    SettingInfo{S::rfFilterOn, "rfFilterOn", K::Flag, "False"},
    SettingInfo{S::rfTracked, "rfTracked", K::Flag, "True"},
    SettingInfo{S::rfFilterApply, "rfFilterApply", K::Flag, "False"},
    SettingInfo{S::tcpFilterDest, "tcpFilterDest", K::Text, ""},
    SettingInfo{S::tcpFilterReject, "tcpFilterReject", K::Text, ""},
    SettingInfo{S::tcpFilterCall, "tcpFilterCall", K::Text, ""},
    SettingInfo{S::tcpFilterRange, "tcpFilterRange", K::Text, ""},
    SettingInfo{S::tcpFilterLat, "tcpFilterLat", K::Text, ""},
    SettingInfo{S::tcpFilterLon, "tcpFilterLon", K::Text, ""},
    SettingInfo{S::tcpFilterOn, "tcpFilterOn", K::Flag, "False"},
    SettingInfo{S::tcpTracked, "tcpTracked", K::Flag, "True"},
    SettingInfo{S::tcpFilterApply, "tcpFilterApply", K::Flag, "False"},
    SettingInfo{S::flFilterDest, "flFilterDest", K::Text, ""},
    SettingInfo{S::flFilterReject, "flFilterReject", K::Text, ""},
    SettingInfo{S::flFilterCall, "flFilterCall", K::Text, ""},
    SettingInfo{S::flFilterRange, "flFilterRange", K::Text, ""},
    SettingInfo{S::flFilterLat, "flFilterLat", K::Text, ""},
    SettingInfo{S::flFilterLon, "flFilterLon", K::Text, ""},
    SettingInfo{S::flFilterOn, "flFilterOn", K::Flag, "False"},
    SettingInfo{S::flTracked, "flTracked", K::Flag, "True"},
    SettingInfo{S::flFilterApply, "flFilterApply", K::Flag, "False"},
    SettingInfo{S::ShowRFUnknown, "ShowRFUnknown", K::Flag, "False"},
    SettingInfo{S::ShowTCPUnknown, "ShowTCPUnknown", K::Flag, "False"},
    SettingInfo{S::ShowFLUnknown, "ShowFLUnknown", K::Flag, "False"},
    SettingInfo{S::ConnectSocket, "ConnectSocket", K::Flag, "False"},
    SettingInfo{S::SerialPort, "SerialPort", K::Text, ""},
    SettingInfo{S::BaudIndex, "BaudIndex", K::Int16, "0"},
    SettingInfo{S::SentenceIndex, "SentenceIndex", K::Int16, "0"},
    SettingInfo{S::UpdateRateIndex, "UpdateRateIndex", K::Int16, "0"},
    SettingInfo{S::LastBaudRate, "LastBaudRate", K::Int32, "0"},
    SettingInfo{S::AddRFSymbol, "AddRFSymbol", K::Flag, "True"},
    SettingInfo{S::TncGps, "TncGps", K::Flag, "False"},
    SettingInfo{S::SerialAutoConnect, "SerialAutoConnect", K::Flag, "False"},
    SettingInfo{S::AutoConnectType, "AutoConnectType", K::Flag, "True"},
    SettingInfo{S::SocketAddress, "SocketAddress", K::Text, ""},
    SettingInfo{S::SocketPort, "SocketPort", K::Int16, "0"},
    SettingInfo{S::GPSPort, "GPSPort", K::Text, ""},
    SettingInfo{S::GPSBaud, "GPSBaud", K::Int32, "4800"},
    SettingInfo{S::TrackGPS, "TrackGPS", K::Flag, "True"},
    SettingInfo{S::AutoGPS, "AutoGPS", K::Flag, "False"},
    SettingInfo{S::TrackedRFStations, "TrackedRFStations", K::Text, ""},
    SettingInfo{S::TrackedTCPStations, "TrackedTCPStations", K::Text, ""},
    SettingInfo{S::TrackedFLStations, "TrackedFLStations", K::Text, ""},
    SettingInfo{S::ShowTrackLine, "ShowTrackLine", K::Flag, "True"},
    SettingInfo{S::FLDelay, "FLDelay", K::Int16, "0"},
    SettingInfo{S::FLAdd, "FLAdd", K::Flag, "True"},
    SettingInfo{S::FLShow, "FLShow", K::Flag, "True"},
    SettingInfo{S::MainMaximized, "MainMaximized", K::Flag, "False"},
    SettingInfo{S::CoordinateForm, "CoordinateForm", K::Int16, "0"},
    SettingInfo{S::FadeAfter, "FadeAfter", K::Int16, "0"},
    SettingInfo{S::OnlineTiles, "OnlineTiles", K::Flag, "False"},
    SettingInfo{S::TileURL, "TileURL", K::Text, "https://tile.openstreetmap.org/{z}/{x}/{y}.png"},
    SettingInfo{S::TileSource, "TileSource", K::Text, ""},
    SettingInfo{S::TileCredit, "TileCredit", K::Text, ""},
    SettingInfo{S::ShowToolBar, "ShowToolBar", K::Flag, "True"},
    SettingInfo{S::ShowStatusBar, "ShowStatusBar", K::Flag, "True"},
    SettingInfo{S::ShowStationList, "ShowStationList", K::Flag, "False"},
    SettingInfo{S::StationListPlace, "StationListPlace", K::Text, ""},
    SettingInfo{S::MapStyle, "MapStyle", K::Int16, "0"},
    SettingInfo{S::MapFont, "MapFont", K::Int16, "2"},
    SettingInfo{S::StandardToolbar, "StandardToolbar", K::Flag, "False"},
    SettingInfo{S::NavigationToolbar, "NavigationToolbar", K::Flag, "True"},
    SettingInfo{S::DrawingToolbar, "DrawingToolbar", K::Flag, "True"},
    SettingInfo{S::LocationScaleToolbar, "LocationScaleToolbar", K::Flag, "False"},
    SettingInfo{S::MapLat, "MapLat", K::Text, ""},
    SettingInfo{S::MapLon, "MapLon", K::Text, ""},
    SettingInfo{S::MapZoom, "MapZoom", K::Text, ""},
};

constexpr bool StandInOrder()
{
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (static_cast<std::size_t>(kSettings[i].setting) != i)
            return false;
    return true;
}
static_assert(StandInOrder() && kSettings.size() == kSettingCount);

std::string VersionDigits()
{
    std::string digits(ProgramVersion());
    std::erase(digits, '.');
    return digits;
}

} // namespace

const SettingInfo& Info(Setting setting)
{
    return kSettings[static_cast<std::size_t>(setting)];
}

std::optional<Setting> SettingOfKey(std::string_view key)
{
    for (const SettingInfo& info : kSettings)
        if (info.key == key)
            return info.setting;
    return std::nullopt;
}

std::string DefaultOf(Setting setting)
{
    return setting == Setting::Dest ? VersionDigits() : std::string(Info(setting).defaultValue);
}

bool IsReadable(SettingKind kind, std::string_view text)
{
    try {
        switch (kind) {
        case SettingKind::Text:
            break;
        case SettingKind::Flag:
            ToBool(text);
            break;
        case SettingKind::Int16:
            ToInt16(text);
            break;
        case SettingKind::Int32:
            ToInt32(text);
            break;
        case SettingKind::Number:
            ToDouble(text);
            break;
        }
        return true;
    } catch (const Failure&) {
        return false;
    }
}

void LoadSettings(SettingsState& settings, StoredSettings& stored)
{
    for (std::size_t i = 0; i < kKeptSettingCount; ++i)
        settings.values[i] = stored.Text(kSettings[i].setting);
}

void SaveSettings(const SettingsState& settings, StoredSettings& stored)
{
    for (std::size_t i = 0; i < kKeptSettingCount; ++i)
        stored.Set(kSettings[i].setting, settings.values[i]);
}

const std::string& SettingText(const SettingsState& settings, Setting setting)
{
    return settings.values.at(static_cast<std::size_t>(setting));
}

std::int32_t SettingInt32(const SettingsState& settings, Setting setting)
{
    return ToInt32(SettingText(settings, setting));
}

bool SettingBool(const SettingsState& settings, Setting setting)
{
    return ToBool(SettingText(settings, setting));
}

void SetSetting(SettingsState& settings, Setting setting, std::string_view value)
{
    settings.values.at(static_cast<std::size_t>(setting)) = value;
}

} // namespace ruvenmark
