#include "platform/numbers.h"
#include "support/test_program.h"
#include "tracking/track_lists.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using M = MainWindow;
using S = Setting;
using W = WindowState;

std::string Shown(const std::string& text)
{
    return text;
}
std::string Shown(bool value)
{
    return std::string(BoolText(value));
}
std::string Shown(std::int32_t value)
{
    return ShortText(std::int64_t{value});
}

// Where a stored value lives while the program runs, as text.
template <Setting Which>
std::string Kept(const M& main)
{
    return SettingText(main.Settings, Which);
}
template <auto Owner, auto Value>
std::string In(const M& main)
{
    return Shown(main.*Owner.*Value);
}
template <Channel Which, auto Value>
std::string Filter(const M& main)
{
    return Shown(main.Of(Which).Filter.*Value);
}
MapView FirstView(const M& main)
{
    const MapView& view = main.mpCtrl.RequireMap().View();
    return RegionView(main.mpCtrl.MapRegion(), view.width, view.height);
}
// Empty where the map looks as its region does at first.
std::string Moved(const M& main, GeoPoint MapView::*centre, double GeoPoint::*part)
{
    const double now = main.mpCtrl.RequireMap().View().*centre.*part;
    return now == FirstView(main).*centre.*part ? "" : ShortText(now);
}

struct Row {
    const char* key;
    const char* byDefault;
    const char* other;
    std::string (*state)(const M&);
};
using enum Channel;
// Everything that outlasts a run, in the order in which it is saved.
constexpr Row kRows[] = {
    {"MainLeft", "1000", "-30", In<&M::window, &W::left>},
    {"MainTop", "1000", "40", In<&M::window, &W::top>},
    {"MainWidth", "6500", "7001", In<&M::window, &W::width>},
    {"MainHeight", "6500", "8001", In<&M::window, &W::height>},
    {"MainMaximized", "False", "True", In<&M::window, &W::bMaximized>},
    {"ShowTreeView", "True", "False", In<&M::window, &W::bLeftPane>},
    {"WindowSplit", "2000", "2500", In<&M::window, &W::splitterLeft>},
    {"Region", "1", "2", In<&M::map, &MapSession::Region>}, // 1: asked for, and closed without an answer.
    {"TrackStationPosition", "True", "False", In<&M::tracking, &TrackState::bTrackStationPosition>},

    {"TrackedRFStations", "", "N0CALL", [](const M& main) { return TrackListText(main.Of(RF)); }},
    {"TrackedTCPStations", "", "N1CALL", [](const M& main) { return TrackListText(main.Of(TCP)); }},
    {"TrackedFLStations", "", "N2CALL", [](const M& main) { return TrackListText(main.Of(FL)); }},
    {"ShowTrackLine", "True", "False", In<&M::tracking, &TrackState::bShowTrackLine>},

    {"rfFilterDest", "", "A*", Filter<RF, &ReportFilter::Dest>},
    {"rfFilterReject", "", "B", Filter<RF, &ReportFilter::Reject>},
    {"rfFilterCall", "", "C", Filter<RF, &ReportFilter::Call>},
    {"rfFilterRange", "", "4", Filter<RF, &ReportFilter::Range>},
    {"rfFilterLat", "", "5", Filter<RF, &ReportFilter::Lat>},
    {"rfFilterLon", "", "-6", Filter<RF, &ReportFilter::Lon>},
    {"tcpFilterDest", "", "A*", Filter<TCP, &ReportFilter::Dest>},
    {"tcpFilterReject", "", "B", Filter<TCP, &ReportFilter::Reject>},
    {"tcpFilterCall", "", "C", Filter<TCP, &ReportFilter::Call>},
    {"tcpFilterRange", "", "4", Filter<TCP, &ReportFilter::Range>},
    {"tcpFilterLat", "", "5", Filter<TCP, &ReportFilter::Lat>},
    {"tcpFilterLon", "", "-6", Filter<TCP, &ReportFilter::Lon>},
    {"flFilterDest", "", "A*", Filter<FL, &ReportFilter::Dest>},
    {"flFilterReject", "", "B", Filter<FL, &ReportFilter::Reject>},
    {"flFilterCall", "", "C", Filter<FL, &ReportFilter::Call>},
    {"flFilterRange", "", "4", Filter<FL, &ReportFilter::Range>},
    {"flFilterLat", "", "5", Filter<FL, &ReportFilter::Lat>},
    {"flFilterLon", "", "-6", Filter<FL, &ReportFilter::Lon>},
    {"rfFilterOn", "False", "True", Filter<RF, &ReportFilter::bOn>},
    {"rfTracked", "True", "False", Filter<RF, &ReportFilter::bTracked>},
    {"rfFilterApply", "False", "True", Filter<RF, &ReportFilter::bApply>},
    {"tcpFilterOn", "False", "True", Filter<TCP, &ReportFilter::bOn>},
    {"tcpTracked", "True", "False", Filter<TCP, &ReportFilter::bTracked>},
    {"tcpFilterApply", "False", "True", Filter<TCP, &ReportFilter::bApply>},
    {"flFilterOn", "False", "True", Filter<FL, &ReportFilter::bOn>},
    {"flTracked", "True", "False", Filter<FL, &ReportFilter::bTracked>},
    {"flFilterApply", "False", "True", Filter<FL, &ReportFilter::bApply>},

    {"Call", "", "N0CALL", Kept<S::Call>},
    {"Dest", "100", "APRS", Kept<S::Dest>}, // The digits of version 1.0.0.
    {"Path", "WIDE2-2", "WIDE1-1", Kept<S::Path>},
    {"Symbol", "-1", "9", Kept<S::Symbol>},
    {"ShowRFNames", "1", "0", Kept<S::ShowRFNames>},
    {"ShowTCPNames", "1", "0", Kept<S::ShowTCPNames>},
    {"All", "0", "1", Kept<S::All>},
    {"PositionInt", "-1", "3", Kept<S::PositionInt>},
    {"WeatherInt", "-1", "4", Kept<S::WeatherInt>},
    {"Lat", "", "48.5", Kept<S::Lat>},
    {"Lon", "", "-11", Kept<S::Lon>},
    {"Alt", "", "300", Kept<S::Alt>},
    {"Speed", "", "30", Kept<S::Speed>},
    {"Course", "", "90", Kept<S::Course>},
    {"Power", "", "50", Kept<S::Power>},
    {"Height", "", "20", Kept<S::Height>},
    {"Gain", "", "3", Kept<S::Gain>},
    {"Directivity", "", "45", Kept<S::Directivity>},
    {"Comment", "", "hello", Kept<S::Comment>},
    {"WindDir", "", "180", Kept<S::WindDir>},
    {"WindSpeed", "", "7", Kept<S::WindSpeed>},
    {"Gust", "", "8", Kept<S::Gust>},
    {"Temperature", "", "70", Kept<S::Temperature>},
    {"Rain1", "", "1", Kept<S::Rain1>},
    {"Rain24", "", "24", Kept<S::Rain24>},
    {"Rain12", "", "12", Kept<S::Rain12>},
    {"Humidity", "", "50", Kept<S::Humidity>},
    {"Pressure", "", "9900", Kept<S::Pressure>},
    {"ReceiveBulletin", "True", "False", Kept<S::ReceiveBulletin>},
    {"MatchSSID", "True", "False", Kept<S::MatchSSID>},
    {"PlayAll", "True", "False", Kept<S::PlayAll>},
    {"PlayTrack", "True", "False", Kept<S::PlayTrack>},
    {"MessageSubnet", "", "net", Kept<S::MessageSubnet>},
    {"WaveFile", "", "/a.wav", Kept<S::WaveFile>},
    {"TrackWaveFile", "", "/b.wav", Kept<S::TrackWaveFile>},
    {"DefaultMap", "", "/c.ptm", Kept<S::DefaultMap>},
    {"TNCLog", "", "/d.log", Kept<S::TNCLog>},
    {"TCPLog", "", "/e.log", Kept<S::TCPLog>},
    {"LogTcpData", "True", "False", Kept<S::LogTcpData>},
    {"TrackLineSize", "1", "8", Kept<S::TrackLineSize>},
    {"TrackLineStyle", "1", "3", Kept<S::TrackLineStyle>},
    {"MobileColor", "1", "7", Kept<S::MobileColor>},
    {"Tactical", "", "BASE", Kept<S::Tactical>},
    {"BeaconTactical", "False", "True", Kept<S::BeaconTactical>},
    {"DestLat", "", "49", Kept<S::DestLat>},
    {"DestLon", "", "12", Kept<S::DestLon>},

    {"PrimaryServer", "", "one.example", In<&M::frmTcp, &ServerForm::sServerAddress>},
    {"PrimaryPort", "-1", "14580", In<&M::frmTcp, &ServerForm::iServerPort>},
    {"PrimaryFilter", "", "r/48/11/50", In<&M::frmTcp, &ServerForm::sServerFilter>},
    {"ServerBeacon", "True", "False", In<&M::frmTcp, &ServerForm::bServerBeacon>},
    {"AddTCPSymbol", "True", "False", In<&M::frmTcp, &ServerForm::bAddTCPSymbol>},
    {"ReconnectServer", "False", "True", In<&M::frmTcp, &ServerForm::bReconnectServer>},
    {"ReconnectAttempt", "0", "5", In<&M::frmTcp, &ServerForm::iReconnectAttempt>},
    {"BackupServer", "", "two.example", In<&M::frmTcp, &ServerForm::sBackupServer>},
    {"BackupPort", "-1", "10152", In<&M::frmTcp, &ServerForm::iBackupPort>},
    {"BackupFilter", "", "t/m", In<&M::frmTcp, &ServerForm::sBackupFilter>},
    {"BackupBeacon", "False", "True", In<&M::frmTcp, &ServerForm::bBackupBeacon>},
    {"AutoTCP", "False", "True", In<&M::frmTcp, &ServerForm::bAutoTCP>},
    {"ConnectSocket", "False", "True", In<&M::commDialog, &TncForm::bConnectSocket>},
    {"SerialPort", "", "/dev/ttyS0", In<&M::commDialog, &TncForm::sSerialPort>},
    {"BaudIndex", "0", "3", In<&M::commDialog, &TncForm::iBaudListIndex>},
    {"SentenceIndex", "0", "2", In<&M::commDialog, &TncForm::iSentenceIndex>},
    {"UpdateRateIndex", "0", "12", In<&M::commDialog, &TncForm::iUpdateRateIndex>},
    {"LastBaudRate", "0", "115200", In<&M::commDialog, &TncForm::lLastBaudRate>},
    {"AddRFSymbol", "True", "False", In<&M::commDialog, &TncForm::bAddRFSymbol>},
    {"TncGps", "False", "True", In<&M::commDialog, &TncForm::bTncGps>},
    {"SerialAutoConnect", "False", "True", In<&M::commDialog, &TncForm::bAutoConnect>},
    {"AutoConnectType", "True", "False", In<&M::commDialog, &TncForm::bAutoSerialPort>},
    {"SocketAddress", "", "localhost", In<&M::commDialog, &TncForm::sSocketAddress>},
    {"SocketPort", "0", "8001", In<&M::commDialog, &TncForm::iSocketPort>},
    {"GPSPort", "", "/dev/ttyUSB0", In<&M::frmGps, &GpsForm::sGPSPort>},
    {"BaudIndex", "2", "3", In<&M::frmGps, &GpsForm::iGPSBaud>},
    {"GPSBaud", "4800", "9600", In<&M::frmGps, &GpsForm::lGPSBaud>},
    {"TrackGPS", "True", "False", In<&M::frmGps, &GpsForm::bTrackGpsPosition>},
    {"AutoGPS", "False", "True", In<&M::frmGps, &GpsForm::bAutoGPS>},
    {"ShowRFUnknown", "False", "True", [](const M& main) { return Shown(main.Of(RF).bShowUnknown); }},
    {"ShowTCPUnknown", "False", "True", [](const M& main) { return Shown(main.Of(TCP).bShowUnknown); }},
    {"ShowFLUnknown", "False", "True", [](const M& main) { return Shown(main.Of(FL).bShowUnknown); }},
    {"FLDelay", "0", "20", In<&M::frmImport, &ImportForm::iFLDelay>},
    {"FLAdd", "True", "False", In<&M::frmImport, &ImportForm::bFLAdd>},
    {"FLShow", "True", "False", In<&M::frmImport, &ImportForm::bFLShow>},

    {"CoordinateForm", "0", "2", [](const M& main) { return Shown(static_cast<std::int32_t>(main.map.coordinates)); }},
    {"FadeAfter", "0", "120", In<&M::map, &MapSession::iFadeAfter>},
    {"OnlineTiles", "False", "True", [](const M& main) { return Shown(main.map.tiles.bOnline); }},
    {"TileURL", "https://tile.openstreetmap.org/{z}/{x}/{y}.png", "https://tiles.example/{z}/{x}/{y}",
     [](const M& main) { return Shown(main.map.tiles.urlTemplate); }},
    {"TileSource", "", "/maps/alps.mbtiles", [](const M& main) { return Shown(main.map.tiles.source); }},
    {"TileCredit", "", "\xC2\xA9 Somebody", [](const M& main) { return Shown(main.map.tiles.credit); }},

    {"ShowToolBar", "True", "False", In<&M::window, &W::bToolBar>},
    {"ShowStatusBar", "True", "False", In<&M::window, &W::bStatusBar>},
    {"ShowStationList", "False", "True", In<&M::window, &W::bStationList>},
    {"StationListPlace", "", "right 400", In<&M::window, &W::stationListPlace>},
    {"MapStyle", "0", "3", [](const M& main) { return Shown(main.mpCtrl.RequireMap().MapStyle()); }},
    {"MapFont", "2", "4", [](const M& main) { return Shown(main.mpCtrl.RequireMap().MapFont()); }},
    {"StandardToolbar", "False", "True", [](const M& main) { return Shown(main.mpCtrl.ToolbarVisible(1)); }},
    {"NavigationToolbar", "True", "False", [](const M& main) { return Shown(main.mpCtrl.ToolbarVisible(2)); }},
    {"DrawingToolbar", "True", "False", [](const M& main) { return Shown(main.mpCtrl.ToolbarVisible(3)); }},
    {"LocationScaleToolbar", "False", "True", [](const M& main) { return Shown(main.mpCtrl.ToolbarVisible(4)); }},
    {"MapLat", "", "48.5", [](const M& main) { return Moved(main, &MapView::centre, &GeoPoint::lat); }},
    {"MapLon", "", "-11", [](const M& main) { return Moved(main, &MapView::centre, &GeoPoint::lon); }},
    {"MapZoom", "", "7.25",
     [](const M& main) {
         const double zoom = main.mpCtrl.RequireMap().View().zoom;
         return zoom == FirstView(main).zoom ? "" : ShortText(zoom);
     }},
};

// Two may share a key: the one that is saved last stays.
const Row& Lasting(const Row& row)
{
    const Row* last = &row;
    for (const Row& other : kRows)
        if (std::string_view(other.key) == row.key)
            last = &other;
    return *last;
}

// A key misspelled, a default changed, a value that is not saved at all, and an order in which a crash would cost more.
TEST(StoredSettings, AFirstRunLeavesEveryDefaultUnderItsKey)
{
    TestProgram p(false);
    p.store.Set("Region", "");
    p.store.written.clear();
    StartMainWindow(p.main);
    EXPECT_THAT(p.store.written, testing::IsEmpty()); // Nothing is saved before the stop.
    ASSERT_EQ(StopMainWindow(p.main), StopResult::Stopped);
    std::vector<std::string> keys;
    for (const Row& row : kRows) {
        keys.emplace_back(row.key);
        EXPECT_EQ(p.store.Lasting(row.key), Lasting(row).byDefault) << row.key;
    }
    EXPECT_EQ(p.store.written, keys);
}

// Each one alone, so that two that were swapped do not stand for each other.
TEST(StoredSettings, EachGoesToItsOwnPlaceAndBack)
{
    for (const Row& changed : kRows) {
        TestProgram p(false);
        p.store.Set("Region", "");
        p.store.Set(changed.key, changed.other);
        StartMainWindow(p.main, AutoConnect::No);
        for (const Row& row : kRows) {
            EXPECT_EQ(row.state(p.main), std::string_view(row.key) == changed.key ? row.other : row.byDefault)
                << row.key << " where " << changed.key << " is stored";
            p.store.Set(row.key, "forgotten");
        }
        ASSERT_EQ(StopMainWindow(p.main), StopResult::Stopped);
        for (const Row& row : kRows)
            EXPECT_EQ(p.store.Lasting(row.key), &Lasting(row) == &Lasting(changed) ? row.other : Lasting(row).byDefault)
                << row.key << " where " << changed.key << " was stored";
    }
}

} // namespace
} // namespace ruvenmark
