#include "links/gps_link.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "links/gps_form_rules.h"
#include "links/gps_panel.h"
#include "map/symbols.h"
#include "outgoing/my_station.h"
#include "platform/geometry.h"
#include "platform/numbers.h"

#include <cmath>
#include <string>

namespace ruvenmark {

namespace {

constexpr std::string_view kNamelessMarker = "Me"; // Until the operator has a call sign.
constexpr std::int16_t kNamelessSymbol = 200;
constexpr std::int16_t kNamelessLostSymbol = 70;
constexpr std::string_view kAcquiring = "Acquiring GPS...";

void DropGps(MainWindow& main, std::string_view panelText)
{
    main.links.gps.reset();
    main.links.bGpsConnected = false;
    ForgetFix(main);
    main.sbStatusBar.SetPanel(Panel::Gps, panelText);
}

void DeleteNamelessMarker(MainWindow& main)
{
    Attempt(main.abandoned, "GPS, marker", [&] {
        if (auto pin = main.mpCtrl.RequireMap().FindPushpin(kNamelessMarker))
            pin->Delete();
    });
}

void KeepValues(SettingsState& settings, const GpsReport& fix)
{
    SetSetting(settings, Setting::Lat, ShortText(fix.lat));
    SetSetting(settings, Setting::Lon, ShortText(fix.lon));
    if (fix.altitude > kAbsent)
        SetSetting(settings, Setting::Alt, NearestText(fix.altitude));
    if (fix.course > kAbsent)
        SetSetting(settings, Setting::Course, NearestText(fix.course));
    if (fix.speed > kAbsent)
        SetSetting(settings, Setting::Speed, NearestText(fix.speed * kMilesPerKnot));
}

// The own station's marker at the place, added where there is none.
Pushpin MoveMarker(MainWindow& main, const GpsReport& fix)
{
    Map& map = main.mpCtrl.RequireMap();
    const Location location = map.GetLocation(fix.lat, fix.lon);
    const std::string& call = SettingText(main.Settings, Setting::Call);
    const std::string_view name = call.empty() ? kNamelessMarker : std::string_view(call);
    auto pin = map.FindPushpin(name);
    if (pin)
        pin->SetLocation(location);
    else
        pin = map.AddPushpin(location, name);
    pin->SetSymbol(name == kNamelessMarker ? kNamelessSymbol : kMyStationSymbol);
    pin->SetBalloonState(1);
    return *pin;
}

// Leaves the map alone while the place is in its middle half, both ways.
void KeepInView(const Map& map, const Location& location)
{
    const auto isFarOut = [](double at, double size) { return std::abs(at - size / 2) > size / 4; };
    if (isFarOut(map.LocationToX(location), map.Width()) || isFarOut(map.LocationToY(location), map.Height()))
        location.GoTo();
}

void FollowFix(MainWindow& main, const GpsReport& fix)
{
    GpsState& gps = main.gps;
    gps.bSameLatLon = fix.lat == gps.currentLat && fix.lon == gps.currentLon;
    if (gps.bSameLatLon)
        return;
    UpdateMyPositionNode(main);
    const Pushpin pin = MoveMarker(main, fix);
    if (main.frmGps.bTrackGpsPosition)
        KeepInView(main.mpCtrl.RequireMap(), pin.Location());
    gps.currentLat = fix.lat;
    gps.currentLon = fix.lon;
}

enum class FixFrom : bool { OwnPort, Tnc };

void TakeFix(MainWindow& main, const GpsReport& fix, FixFrom from)
{
    const bool bOwnPort = from == FixFrom::OwnPort;
    if (fix.bValid) {
        KeepValues(main.Settings, fix);
        main.gps.bValidFix = true;
        if (bOwnPort)
            main.sbStatusBar.SetPanel(Panel::Gps, "GPS Position Fix");
        FollowFix(main, fix);
    } else {
        if (auto pin = bOwnPort ? main.mpCtrl.RequireMap().FindPushpin(kNamelessMarker) : std::nullopt)
            pin->SetSymbol(kNamelessLostSymbol);
        ForgetFix(main);
        if (bOwnPort)
            main.sbStatusBar.SetPanel(Panel::Gps, kAcquiring);
    }
    UpdateGpsData(main);
}

class GpsSink final : public IGpsSink {
public:
    explicit GpsSink(MainWindow& main) : m_main(main) {}

    void PositionFix(const GpsReport& fix) override
    {
        Attempt(m_main.abandoned, "gps_PositionFix", [&] { TakeFix(m_main, fix, FixFrom::OwnPort); });
    }
    void ConnectionError() override
    {
        DeleteNamelessMarker(m_main);
        DropGps(m_main, "GPS connection error");
    }

private:
    MainWindow& m_main;
};

void CloseGps(MainWindow& main)
{
    Attempt(main.abandoned, "CloseGpsPort", [&] { main.links.gps->CloseGpsPort(); });
}

} // namespace

void mnuConnectGps_Click(MainWindow& main)
{
    if (main.links.bGpsConnected) {
        CloseGps(main);
        DropGps(main, "GPS disconnected");
        DeleteNamelessMarker(main);
        return;
    }
    frmGps_Load(main.frmGps);
    main.services.dialogs.Run(Form::frmGps, main);
    ConnectGps(main);
}

void mnuToolsGpsTracking_Click(MainWindow& main)
{
    main.frmGps.bTrackGpsPosition = !main.frmGps.bTrackGpsPosition;
}

void ConnectGps(MainWindow& main)
{
    if (!main.frmGps.bConnect)
        return;
    const bool bOpen = AttemptAloud(main, "GPS connection failed", [&] {
        LinkState& links = main.links;
        main.gps.GpsUpdateSeconds = 1;
        if (!links.gpsSink)
            links.gpsSink = std::make_unique<GpsSink>(main);
        links.gps = main.services.gpsServers.CreateGps(*links.gpsSink);
        links.gps->OpenGpsPort(main.frmGps.sGPSPort, main.frmGps.lGPSBaud, kAccessToken);
        links.bGpsConnected = true;
        main.sbStatusBar.SetPanel(Panel::Gps, kAcquiring);
    });
    if (!bOpen)
        DropGps(main, "GPS connection failed");
}

void EndGps(MainWindow& main)
{
    if (!main.links.bGpsConnected)
        return;
    CloseGps(main);
    main.links.gps.reset();
    main.links.bGpsConnected = false;
}

void ForgetFix(MainWindow& main)
{
    main.gps.bValidFix = false;
    SetSetting(main.Settings, Setting::Speed, "");
    SetSetting(main.Settings, Setting::Course, "");
}

void aprs_ReportGpsData(MainWindow& main, const GpsReport& fix)
{
    if (main.commDialog.bTncGps)
        Attempt(main.abandoned, "aprs_ReportGpsData", [&] { TakeFix(main, fix, FixFrom::Tnc); });
}

} // namespace ruvenmark
