#include "links/gps_form_rules.h"
#include "links/gps_link.h"
#include "links/gps_panel.h"
#include "map/pointer_tools.h"
#include "platform/numbers.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr std::string_view kFix = "$GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,,\r\n"
                                  "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,\r\n";
constexpr std::string_view kVoid = "$GPRMC,123520,V,,,,,,,230394,,\r\n";

struct GpsLink : testing::Test {
    TestProgram program;
    MainWindow& main = program.main;
    const GpsPanelState& panel = main.frmGpsPanel;

    GpsLink()
    {
        program.dialogs.onRun[Form::frmGps] = [](MainWindow& window) {
            window.frmGps.cboPort = "/dev/ttyS0";
            frmGps_Accept(window);
        };
    }
    void Connect() { mnuConnectGps_Click(main); }
    void Hear(std::string_view sentences)
    {
        program.wires.Say(sentences);
        program.wires.Tick(std::chrono::milliseconds(500));
    }
    void Fix(double lat, double lon, double speed = kAbsent) const
    {
        main.links.gpsSink->PositionFix({.lat = lat, .lon = lon, .speed = speed, .bValid = true});
    }
    void Lose() const { main.links.gpsSink->PositionFix({.lat = 0, .lon = 0, .bValid = false}); }
    const std::string& Text(Setting setting) const { return SettingText(main.Settings, setting); }
    const std::string& Status() const { return main.sbStatusBar.PanelText(Panel::Gps); }
    int Symbol(std::string_view name) const
    {
        const auto pin = program.Marker(name);
        return pin ? pin->Symbol() : -1;
    }
};

TEST_F(GpsLink, TakesPlaceAndMotionFromTheReceiverUntilItIsDisconnected)
{
    main.gps.GpsUpdateSeconds = 100; // Of the receiver behind a TNC.
    Connect();
    EXPECT_EQ(program.wires.opened, "serial /dev/ttyS0 4800");
    EXPECT_EQ(Status(), "Acquiring GPS...");
    EXPECT_EQ(main.gps.GpsUpdateSeconds, 1);
    Hear(kFix);
    EXPECT_EQ(Status(), "GPS Position Fix");
    EXPECT_THAT(Text(Setting::Lat), StartsWith("48.1173"));
    EXPECT_THAT(Text(Setting::Lon), StartsWith("11.51666"));
    EXPECT_EQ(Text(Setting::Alt), "1789");
    EXPECT_EQ(Text(Setting::Course), "84");
    EXPECT_EQ(Text(Setting::Speed), "26");
    EXPECT_EQ(Symbol("Me"), 200);
    EXPECT_EQ(program.Marker("Me")->BalloonState(), 1);
    Hear(kVoid);
    EXPECT_EQ(Status(), "Acquiring GPS...");
    EXPECT_FALSE(main.gps.bValidFix);
    EXPECT_EQ(Text(Setting::Speed) + Text(Setting::Course), "");
    EXPECT_EQ(Text(Setting::Alt), "1789"); // The place known last stands.
    EXPECT_EQ(Symbol("Me"), 70);
    Connect();
    EXPECT_EQ(Status(), "GPS disconnected");
    EXPECT_FALSE(program.wires.IsKept());
    EXPECT_EQ(Symbol("Me"), -1);
}

TEST_F(GpsLink, MarkerOfACallKeepsItsSymbolAndOutlastsTheLink)
{
    program.Set("Call=N0CALL");
    Connect();
    Fix(40, -90);
    Fix(41, -91);
    Lose();
    Connect();
    EXPECT_THAT(program.MarkerNames(), ElementsAre("N0CALL"));
    EXPECT_EQ(Symbol("N0CALL"), 111);
    EXPECT_EQ(program.Marker("N0CALL")->Location().Point(), (GeoPoint{41, -91}));
}

// Missing values are those of -999 and below; halves go to the even neighbour.
TEST_F(GpsLink, MissingValuesLeaveTheFormerOnes)
{
    Connect();
    Fix(40, -90, 100);
    main.links.gpsSink->PositionFix({.lat = 40, .lon = -90, .altitude = -998.6, .course = 2.5, .bValid = true});
    main.links.gpsSink->PositionFix(
        {.lat = 40, .lon = -90, .altitude = -999, .course = -1000, .speed = -2000, .bValid = true});
    EXPECT_EQ(Text(Setting::Alt) + '/' + Text(Setting::Course) + '/' + Text(Setting::Speed), "-999/2/115");
}

TEST_F(GpsLink, MapFollowsAMarkerThatLeavesItsMiddle)
{
    Map& map = program.TheMap();
    Connect();
    const auto moves = [&](int right, int down) {
        map.SetSize(800, 600);
        map.SetView({40, -90}, 8);
        const GeoPoint point = map.XYToLocation(400 + right, 300 + down).Point();
        Fix(point.lat, point.lon);
        return map.View().centre != GeoPoint{40, -90};
    };
    EXPECT_FALSE(moves(195, 145) || moves(-195, -145));
    EXPECT_TRUE(moves(205, 0) && moves(-205, 0) && moves(0, 155) && moves(0, -155));
    RunMenuEntry(main, MenuEntry::mnuToolsGpsTracking);
    EXPECT_FALSE(moves(0, 200));
}

TEST_F(GpsLink, AStandingStationLeavesMarkerAndMapAlone)
{
    Connect();
    Fix(0, 0); // Nowhere else was before.
    EXPECT_EQ(Symbol("Me"), -1);
    Fix(40, -90);
    program.Marker("Me")->SetSymbol(5);
    Fix(40, -90, 3);
    EXPECT_EQ(Symbol("Me"), 5);
    EXPECT_TRUE(main.gps.bSameLatLon);
    EXPECT_EQ(panel.lblSpeed, "3 mph");
}

TEST_F(GpsLink, ThroughTheTncOnlyWhereAReceiverHangsOnItAndQuietly)
{
    const auto hear = [&](bool bValid) {
        program.Sink(Channel::RF).ReportGpsData({.lat = 40, .lon = -90, .speed = 10, .bValid = bValid});
    };
    hear(true);
    EXPECT_EQ(Text(Setting::Lat), "");
    main.commDialog.bTncGps = true;
    hear(true);
    EXPECT_EQ(Text(Setting::Lat), "40");
    EXPECT_EQ(panel.lblSpeed, "12 mph");
    EXPECT_EQ(Symbol("Me"), 200);
    hear(false);
    EXPECT_EQ(Symbol("Me"), 200);
    EXPECT_EQ(Text(Setting::Speed), "");
    EXPECT_EQ(panel.lblStatus, "No Position Fix");
    EXPECT_EQ(Status(), "");
}

TEST_F(GpsLink, AnAbsentOrLostPortIsToldAndCanBeTriedAgain)
{
    program.wires.bRefuse = true;
    Connect();
    EXPECT_EQ(Status(), "GPS connection failed");
    EXPECT_FALSE(main.links.bGpsConnected);
    program.wires.bRefuse = false;
    Connect();
    Hear(kFix);
    program.wires.Lose();
    EXPECT_EQ(Status(), "GPS connection error");
    EXPECT_FALSE(main.links.bGpsConnected || main.gps.bValidFix || main.links.gps);
    EXPECT_EQ(Symbol("Me"), -1);
    Connect();
    EXPECT_TRUE(main.links.bGpsConnected);
    EXPECT_EQ(StopMainWindow(main, MayAsk::No), StopResult::Stopped);
    EXPECT_FALSE(program.wires.IsKept());
}

TEST_F(GpsLink, DialogRefusesWhatCannotWork)
{
    main.frmGps.iGPSBaud = 77; // As stored by somebody else.
    main.links.bSerialConnected = true;
    main.commDialog.sSerialPort = "/dev/ttyS0";
    program.dialogs.onRun[Form::frmGps] = [](MainWindow& window) {
        GpsForm& form = window.frmGps;
        form.cboPort = "/dev/ttyS0";
        EXPECT_FALSE(frmGps_Accept(window));
        form.cboBaud = 7;
        EXPECT_FALSE(frmGps_Accept(window));
        form.cboPort = "";
        EXPECT_FALSE(frmGps_Accept(window));
    };
    Connect();
    EXPECT_THAT(program.prompts.messages,
                ElementsAre("You must select port and baud rate!", "You are already connected to TNC on /dev/ttyS0!",
                            "You must select port and baud rate!"));
    EXPECT_EQ(program.wires.opened + Status(), "");
}

struct GpsPanel : GpsLink {
    GpsPanel()
    {
        Connect();
        program.Set("DestLat=41 DestLon=-90");
    }
};

TEST_F(GpsPanel, TellsHowLongTheWayTakesOnceTheStationComesNearer)
{
    main.gps.GpsUpdateSeconds = 0; // As a TNC leaves it that sends on its own.
    Fix(40, -90);
    EXPECT_EQ(panel.lblDistance, ShortText(RoundDecimals(GreatCircleMiles({40, -90}, {41, -90}), 3)) + " miles");
    EXPECT_EQ(panel.lblDuration, kNoGpsValue);
    Fix(40 + 1.0 / 3910, -90);
    EXPECT_EQ(panel.lblDuration, "1h:5m:9s");
    main.gps.GpsUpdateSeconds = 2;
    Fix(40 + 2.0 / 3910, -90);
    EXPECT_EQ(panel.lblDuration, "2h:10m:16s");
    EXPECT_EQ(panel.lblStatus + '/' + panel.lblAlt + '/' + panel.lblSpeed, "Valid Position Fix/ feet/");
    program.Set("DestLon=");
    Fix(40, -90);
    EXPECT_EQ(panel.lblDistance + panel.lblDuration, std::string(kNoGpsValue) + kNoGpsValue);
    EXPECT_EQ(main.gps.LastDestDistance, -2);
}

// A duration goes away where the speed agrees that the station does not come nearer.
TEST_F(GpsPanel, KeepsTheDurationWhereSpeedAndFixesDisagree)
{
    const auto durationAfter = [&](double lat, double speed) {
        Fix(40, -90, kAbsent);
        program.Set("Speed=");
        Fix(40.01, -90);
        Fix(lat, -90, speed);
        return panel.lblDuration;
    };
    constexpr const char* kBefore = "0h:1m:39s";
    EXPECT_EQ(durationAfter(40.01, kAbsent), kBefore);
    EXPECT_EQ(durationAfter(40.01, 30), kBefore);
    EXPECT_EQ(durationAfter(40.01, 0), kNoGpsValue);
    EXPECT_EQ(durationAfter(39.99, 30), kNoGpsValue);
    EXPECT_EQ(durationAfter(39.99, 0), kBefore);
}

TEST_F(GpsPanel, TakesItsDestinationFromTheMapAndForgetsTheFix)
{
    mnuViewGPSPanel_Click(main);
    EXPECT_EQ(panel.lblDestLat + panel.lblDestLon, "41-90");
    program.TheMap().SetView({47.5, 11.25}, 10);
    frmGpsPanel_Command1_Click(main);
    EXPECT_TRUE(mpCtrl_Click(main, main.mpCtrl.RequireMap().Width() / 2.0, main.mpCtrl.RequireMap().Height() / 2.0));
    EXPECT_EQ(panel.lblDestLat + ' ' + panel.lblDestLon, "47.5 11.25");
    EXPECT_EQ(Text(Setting::DestLat), "47.5");
    Fix(40, -90);
    Timer1_Timer(main);
    EXPECT_EQ(panel.lblLat, "40");
    program.wires.Lose(); // Tells the panel nothing: the timer does.
    Timer1_Timer(main);
    EXPECT_EQ(panel.lblStatus + '/' + panel.lblLat + '/' + panel.lblDestLat,
              "No Position Fix/" + std::string(kNoGpsValue) + "/47.5");
    frmGpsPanel_Command2_Click(main);
    EXPECT_EQ(panel.lblDestLat + panel.lblDestLon + Text(Setting::DestLat) + Text(Setting::DestLon), "");
}

} // namespace
} // namespace ruvenmark
