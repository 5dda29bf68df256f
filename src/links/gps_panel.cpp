#include "links/gps_panel.h"

#include "core/main_window.h"
#include "map/pointer_tools.h"
#include "platform/numbers.h"
#include "tracking/track_lists.h"

#include <string>

namespace ruvenmark {

namespace {

constexpr double kLeastApproach = 0.0001; // Miles a second.
constexpr double kLeastSpeed = 0.01;      // Miles an hour.

const std::string& Value(const MainWindow& main, Setting setting)
{
    return SettingText(main.Settings, setting);
}

void Show(MainWindow& main)
{
    main.services.dialogs.Refresh(Form::frmGpsPanel);
}

void ShowNoFix(MainWindow& main)
{
    GpsPanelState none;
    none.lblDestLat = main.frmGpsPanel.lblDestLat;
    none.lblDestLon = main.frmGpsPanel.lblDestLon;
    main.frmGpsPanel = none;
    Show(main);
}

std::string DurationText(std::int64_t seconds)
{
    return ShortText(seconds / 3600) + "h:" + ShortText(seconds / 60 % 60) + "m:" + ShortText(seconds % 60) + "s";
}

// Empty where the label keeps its text: a speed that belies the fixes tells nothing of the way.
std::string Duration(const MainWindow& main)
{
    const GpsState& gps = main.gps;
    const double rate = (gps.LastDestDistance - gps.DestDistance) / gps.GpsUpdateSeconds;
    if (rate > kLeastApproach)
        return DurationText(ToInt32(gps.DestDistance / rate));
    const std::string& text = Value(main, Setting::Speed);
    if (text.empty())
        return {};
    const double speed = ToDouble(text);
    return (gps.bSameLatLon ? speed < kLeastSpeed : speed > kLeastSpeed) ? kNoGpsValue : "";
}

void UpdateWay(MainWindow& main)
{
    GpsState& gps = main.gps;
    GpsPanelState& panel = main.frmGpsPanel;
    const std::string& destLat = Value(main, Setting::DestLat);
    const std::string& destLon = Value(main, Setting::DestLon);
    if (destLat.empty() || destLon.empty()) {
        gps.LastDestDistance = -2;
        gps.DestDistance = -1;
        panel.lblDistance = panel.lblDuration = kNoGpsValue;
        return;
    }
    gps.DestDistance = TravelDistance(main, ToDouble(Value(main, Setting::Lat)), ToDouble(Value(main, Setting::Lon)),
                                      ToDouble(destLat), ToDouble(destLon));
    panel.lblDistance = ShortText(RoundDecimals(gps.DestDistance, 3)) + " miles";
    if (gps.GpsUpdateSeconds == 0)
        gps.GpsUpdateSeconds = 1;
    if (const std::string duration = Duration(main); !duration.empty())
        panel.lblDuration = duration;
    gps.LastDestDistance = gps.DestDistance;
}

void SetDestination(MainWindow& main, const LatLonText& text)
{
    main.frmGpsPanel.lblDestLat = text.lat;
    main.frmGpsPanel.lblDestLon = text.lon;
    SetSetting(main.Settings, Setting::DestLat, text.lat);
    SetSetting(main.Settings, Setting::DestLon, text.lon);
    Show(main);
}

bool IsPanelVisible(const MainWindow& main)
{
    return main.services.dialogs.IsVisible(Form::frmGpsPanel);
}

void TakePoint(MainWindow& main, GeoPoint point)
{
    SetDestination(main, TextOfPoint(point));
}

} // namespace

void UpdateGpsData(MainWindow& main)
{
    if (!main.gps.bValidFix) {
        ShowNoFix(main);
        return;
    }
    GpsPanelState& panel = main.frmGpsPanel;
    panel.lblStatus = "Valid Position Fix";
    panel.lblLat = Value(main, Setting::Lat);
    panel.lblLon = Value(main, Setting::Lon);
    panel.lblAlt = Value(main, Setting::Alt) + " feet";
    panel.lblCourse = Value(main, Setting::Course);
    const std::string& speed = Value(main, Setting::Speed);
    panel.lblSpeed = speed.empty() ? "" : speed + " mph";
    UpdateWay(main);
    Show(main);
}

void UpdateGpsDataExt(MainWindow& main)
{
    if (!main.gps.bValidFix)
        ShowNoFix(main);
}

void Timer1_Timer(MainWindow& main)
{
    UpdateGpsDataExt(main);
}

void frmGpsPanel_Load(MainWindow& main)
{
    main.frmGpsPanel.lblDestLat = Value(main, Setting::DestLat);
    main.frmGpsPanel.lblDestLon = Value(main, Setting::DestLon);
}

void frmGpsPanel_Command1_Click(MainWindow& main)
{
    StartPinPoint(main, {IsPanelVisible, TakePoint, Form::frmGpsPanel});
}

void frmGpsPanel_Command2_Click(MainWindow& main)
{
    SetDestination(main, {});
}

void mnuViewGPSPanel_Click(MainWindow& main)
{
    if (IsPanelVisible(main)) {
        main.services.dialogs.Hide(Form::frmGpsPanel);
        return;
    }
    frmGpsPanel_Load(main);
    main.services.dialogs.Show(Form::frmGpsPanel, main);
}

} // namespace ruvenmark
