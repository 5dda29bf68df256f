#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

class StoredSettings;

// Every value that the store keeps, by its own name. The first 46 live in SettingsState; of the others each has its
// home with what it is about and is read and written there.
enum class Setting : std::uint8_t {
    Call,
    Dest,
    Path,
    Symbol,
    ShowRFNames,
    ShowTCPNames,
    All,
    PositionInt,
    WeatherInt,
    Lat,
    Lon,
    Alt,
    Speed,
    Course,
    Power,
    Height,
    Gain,
    Directivity,
    Comment,
    WindDir,
    WindSpeed,
    Gust,
    Temperature,
    Rain1,
    Rain24,
    Rain12,
    Humidity,
    Pressure,
    ReceiveBulletin,
    MatchSSID,
    PlayAll,
    PlayTrack,
    MessageSubnet,
    WaveFile,
    TrackWaveFile,
    DefaultMap,
    TNCLog,
    TCPLog,
    LogTcpData,
    TrackLineSize,
    TrackLineStyle,
    MobileColor,
    Tactical,
    BeaconTactical,
    DestLat,
    DestLon,

    WindowSplit,
    ShowTreeView,
    MainLeft,
    MainTop,
    MainWidth,
    MainHeight,
    Region,
    TrackStationPosition,

    PrimaryServer,
    PrimaryPort,
    PrimaryFilter,
    ServerBeacon,
    AddTCPSymbol,
    ReconnectServer,
    ReconnectAttempt,
    BackupServer,
    BackupPort,
    BackupFilter,
    BackupBeacon,
    AutoTCP,

    rfFilterDest,
    rfFilterReject,
    rfFilterCall,
    rfFilterRange,
    rfFilterLat,
    rfFilterLon,
    rfFilterOn,
    rfTracked,
    rfFilterApply,
    tcpFilterDest,
    tcpFilterReject,
    tcpFilterCall,
    tcpFilterRange,
    tcpFilterLat,
    tcpFilterLon,
    tcpFilterOn,
    tcpTracked,
    tcpFilterApply,
    flFilterDest,
    flFilterReject,
    flFilterCall,
    flFilterRange,
    flFilterLat,
    flFilterLon,
    flFilterOn,
    flTracked,
    flFilterApply,

    ShowRFUnknown,
    ShowTCPUnknown,
    ShowFLUnknown,
    ConnectSocket,
    SerialPort,
    BaudIndex, // Shared by the TNC and the GPS receiver, each with a default of its own.
    SentenceIndex,
    UpdateRateIndex,
    LastBaudRate,
    AddRFSymbol,
    TncGps,
    SerialAutoConnect,
    AutoConnectType,
    SocketAddress,
    SocketPort,
    GPSPort,
    GPSBaud,
    TrackGPS,
    AutoGPS,

    TrackedRFStations,
    TrackedTCPStations,
    TrackedFLStations,
    ShowTrackLine,
    FLDelay,
    FLAdd,
    FLShow,
    MainMaximized,
    CoordinateForm,
    FadeAfter,

    OnlineTiles,
    TileURL,
    TileSource,
    TileCredit,

    ShowToolBar,
    ShowStatusBar,
    ShowStationList,
    StationListPlace,
    MapStyle,
    MapFont,
    StandardToolbar,
    NavigationToolbar,
    DrawingToolbar,
    LocationScaleToolbar,
    MapLat,
    MapLon,
    MapZoom
};
inline constexpr std::size_t kSettingCount = static_cast<std::size_t>(Setting::MapZoom) + 1;
inline constexpr std::size_t kKeptSettingCount = static_cast<std::size_t>(Setting::DestLon) + 1;

// The setting so many places behind another one in the list.
constexpr Setting Behind(Setting setting, std::size_t places)
{
    return static_cast<Setting>(static_cast<std::size_t>(setting) + places);
}

// What a text has to be for its reader: anything, a truth value, or a number of that many bits.
enum class SettingKind : std::uint8_t { Text, Flag, Int16, Int32, Number };

struct SettingInfo {
    Setting setting;
    std::string_view key; // In the store and on the command line.
    SettingKind kind;
    std::string_view defaultValue; // Of Dest: see DefaultOf.
};
const SettingInfo& Info(Setting setting);
// Nothing for a key of another program or of nobody.
std::optional<Setting> SettingOfKey(std::string_view key);
std::string DefaultOf(Setting setting);
// Whether a reader of that kind can read the text.
bool IsReadable(SettingKind kind, std::string_view text);

// The named values that most of the program shares, all texts. Loaded once at start, saved at stop; a crash loses the
// run's changes. Empty before they are loaded.
struct SettingsState {
    std::array<std::string, kKeptSettingCount> values;
};

// Read and write the kept values in their fixed order.
void LoadSettings(SettingsState& settings, StoredSettings& stored);
void SaveSettings(const SettingsState& settings, StoredSettings& stored);

// All take one of the kept settings.
const std::string& SettingText(const SettingsState& settings, Setting setting);
// These raise Failure for a text that is no such value.
std::int32_t SettingInt32(const SettingsState& settings, Setting setting);
bool SettingBool(const SettingsState& settings, Setting setting);
void SetSetting(SettingsState& settings, Setting setting, std::string_view value);

} // namespace ruvenmark
