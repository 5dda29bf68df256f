#include "outgoing/beacons.h"
#include "outgoing/my_station.h"
#include "outgoing/object_report.h"
#include "outgoing/position_form_rules.h"
#include "outgoing/position_report.h"
#include "outgoing/status_report.h"
#include "outgoing/weather_report.h"
#include "outgoing/weather_report_form_rules.h"
#include "support/noted_source.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <tuple>
#include <vector>

namespace ruvenmark {
namespace {

using Lines = std::vector<std::string>;

class Sending : public NotedLinks {
protected:
    Sending() { program.Set("Lat=37.5 Lon=-122.25 Symbol=9"); }
};

constexpr const char* kText = "!3730.00N/12215.00W>";

TEST_F(Sending, TheRoadsInTheirOrder)
{
    Open(true, true, true);
    SendPositionReport(main, true);
    EXPECT_EQ(Take(), (Lines{"command mode", "MYCALL N0CALL", "UNPROTO APRS VIA WIDE1-1", "CONV", kText,
                             std::string("frame N0CALL|APRS|WIDE1-1|") + kText,
                             std::string("server N0CALL>APRS,TCPIP*:") + kText}));
    EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over TNC, AGW, server at 20:15:03");
    program.Sink(Channel::RF).ReportNotSent(">another"); // Sent ahead of it.
    EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over TNC, AGW, server at 20:15:03");
    program.Sink(Channel::RF).ReportNotSent(kText);
    EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over AGW, server at 20:15:03");
    program.Set("Tactical=BASE BeaconTactical=True");
    SendPositionReport(main, false);
    EXPECT_EQ(Take().back(), std::string("server BASE>APRS,TCPIP*:") + kText);
}

// An operator must know once, not at each beacon, that the transmitter is keyed.
TEST_F(Sending, TheFirstOneIsAnnounced)
{
    Open(false, true, true);
    SendPositionReport(main, false);
    SendPositionReport(main, false);
    EXPECT_EQ(program.notices.lines, Lines{"Reports go out over AGW, server"});
}

TEST_F(Sending, AFailureSkipsTheLaterRoads)
{
    Open(true, false, true);
    bRfFails = true;
    SendPositionReport(main, true);
    EXPECT_EQ(Take(), Lines{});
    EXPECT_TRUE(program.prompts.messages.empty());
    program.dialogs.onRun[Form::frmStatus] = [&](MainWindow& /*of*/) {
        main.frmStatus.roads.chkRF = main.frmStatus.roads.chkTCP = true;
        main.frmStatus.txtStatus = "here";
        EXPECT_EQ(frmStatus_Accept(main), "");
    };
    mnuSendStatus_Click(main);
    EXPECT_EQ(program.prompts.messages, Lines{"Status report not sent correctly, check TNC connection!"});
    bRfFails = false;
    bServerFails = true;
    mnuSendStatus_Click(main);
    EXPECT_EQ(main.sbStatusBar.Sent(), "Sent over TNC at 20:15:03"); // What did go out is told.
}

// Stored by hand or by another program. Such figures would fill the report with nonsense, or with anything at all.
TEST_F(Sending, APlaceOffTheEarthOrWithoutACallIsNotSent)
{
    Open(false, false, true);
    for (const auto& [setting, wrong, right] :
         {std::tuple(Setting::Lat, "90.01", "-90"), std::tuple(Setting::Lat, "1e300", "90"),
          std::tuple(Setting::Lon, "-200", "180")}) {
        Set(setting, wrong);
        SendPositionReport(main, true);
        EXPECT_EQ(Take(), Lines{}) << wrong;
        Set(setting, right);
        SendPositionReport(main, true);
        EXPECT_EQ(Take().size(), 1U) << right;
    }
    EXPECT_TRUE(program.prompts.messages.empty()); // Nobody is at a beacon.
    program.Set("Call=");
    SendPositionReport(main, true);
    EXPECT_EQ(Take(), Lines{});
}

TEST_F(Sending, MotionTakesThePlaceOfTheAntennaWhileTheFixIsValid)
{
    Open(false, false, true);
    program.Set("Height=40 Speed=115 Course=90");
    for (const char* power : {"6000", "-1"}) { // Out of bounds: as none.
        Set(Setting::Power, power);
        SendPositionReport(main, false);
        EXPECT_EQ(Take(), Lines{std::string("server N0CALL>APRS,TCPIP*:") + kText});
    }
    main.gps.bValidFix = true;
    SendPositionReport(main, false);
    EXPECT_EQ(Take(), Lines{std::string("server N0CALL>APRS,TCPIP*:") + kText + "090/100"});
}

TEST_F(Sending, WeatherOfTheSettingsAndOfTheDialog)
{
    Open(false, false, true);
    program.Set("WindDir=220 WindSpeed=4 Gust=5 Temperature=-10 Humidity=100");
    SendWeatherReport(main);
    EXPECT_EQ(Take(), Lines{"server N0CALL>APRS,TCPIP*:_11230115c220s004g005t-10r000p000P000h00b00000"});
    Lines refused;
    program.dialogs.onRun[Form::frmWeather] = [&](MainWindow& /*of*/) {
        auto& boxes = main.frmWeather.boxes;
        main.frmWeather.roads.chkTCP = true;
        refused.emplace_back(frmWeather_Accept(main));
        boxes[0] = "361";
        boxes[1] = boxes[2] = boxes[3] = "7";
        refused.emplace_back(frmWeather_Accept(main));
        boxes[0] = "360";
        boxes[7] = "100";
        refused.emplace_back(frmWeather_Accept(main));
        boxes[7] = "";
        main.frmWeather.calls.txtFrom = "n1call";
        refused.emplace_back(frmWeather_Accept(main));
    };
    mnuSendWeather_Click(main);
    EXPECT_EQ(refused, (Lines{"Wind direction, speed, gust and temperature are required!",
                              "Enter an interger between 0 and 360 for wind direction!",
                              "Enter an interger between 0 and 99 for humidity!", ""}));
    EXPECT_EQ(Take(), Lines{"server N1CALL>APRS,TCPIP*:_11230115c360s007g007t007r000p000P000h00b00000"});
}

TEST_F(Sending, TheStatusDialogsLimits)
{
    StatusForm& form = main.frmStatus;
    frmStatus_Load(main);
    EXPECT_EQ(form.calls.txtFrom, "N0CALL");
    EXPECT_EQ(frmStatus_Accept(main), "Status field can not be empty!");
    form.txtStatus.assign(63, 'x');
    EXPECT_EQ(frmStatus_Accept(main), "Status text can not have more than 62 characters!");
    form.calls.txtTo = "";
    EXPECT_EQ(frmStatus_Accept(main), "You must enter call sign and unproto!");
    EXPECT_TRUE(form.bCancelled);
}

TEST_F(Sending, ThePositionDialogKeepsSendsAndRefuses)
{
    Open(false, true, false);
    mnuSendPosition_Click(main);
    PositionForm& form = main.frmPosition;
    EXPECT_FALSE(form.roads.CanSend());
    form.roads.chkTCP = true; // Not enabled.
    EXPECT_FALSE(form.roads.CanSend());
    form.roads.chkRF = true;
    EXPECT_TRUE(form.roads.CanSend());
    EXPECT_EQ(form.txtLat, "37.5");
    form.txtLat.clear();
    frmPosition_Send(main);
    form.txtLat = "91";
    frmPosition_Send(main);
    EXPECT_EQ(form.txtLat, "0.0");
    form.txtLat = "-1.5";
    form.txtComment.assign(44, 'x');
    frmPosition_Send(main);
    EXPECT_EQ(program.prompts.messages,
              (Lines{"You must enter latitude and longitude!", "Enter a value between -90 and 90 for latitude!",
                     "Comment can not be longer than 43 characters!"}));
    EXPECT_TRUE(program.dialogs.IsVisible(Form::frmPosition));
    EXPECT_EQ(form.Comment, "");
    form.txtComment = "hi";
    form.calls.txtFrom = "n1call";
    form.txtAlt = "300";
    form.txtPower = "25";
    form.txtHeight = "40";
    form.txtGain = "3";
    form.txtDir = "90";
    frmPosition_Send(main);
    EXPECT_EQ(Take(), Lines{"frame N1CALL|APRS|WIDE1-1|!0130.00S/12215.00W)PHG5232/A=000300hi"});
    EXPECT_FALSE(program.dialogs.IsVisible(Form::frmPosition));
    mnuSendPosition_Click(main);
    EXPECT_EQ(form.txtLat, "-1.5");
    EXPECT_EQ(form.txtComment, "hi");
    EXPECT_EQ(form.txtAlt + '|' + form.txtPower + '|' + form.txtHeight + '|' + form.txtGain + '|' + form.txtDir,
              "300|25|40|3|90");
}

// A bound that is another one than the operator is told.
TEST(NumberBoxes, TakeWhatTheirMessagesSay)
{
    const auto expectTold = [](const NumberRule& rule) {
        double lowest = 0, highest = 0;
        ASSERT_EQ(std::sscanf(rule.message.data(), "%*[^-0-9]%lf and %lf", &lowest, &highest), 2) << rule.message;
        EXPECT_EQ(rule.lowest, lowest) << rule.message;
        EXPECT_EQ(rule.highest, highest) << rule.message;
    };
    for (const PositionBox& box : kPositionBoxes)
        expectTold(box.rule);
    for (const ObjectBox& box : kObjectBoxes)
        expectTold(box.rule);
    for (const auto& box : kWeatherBoxes)
        expectTold(box.rule);
}

TEST_F(Sending, TheObjectDialogRefusesInItsOrder)
{
    Open(false, false, true);
    mnuSendObject_Click(main);
    ObjectForm& form = main.frmObject;
    form.roads.chkTCP = true;
    frmObject_Send(main);
    form.shown.txtName = "tencharact";
    frmObject_Send(main);
    form.shown.txtName = "flood";
    frmObject_Send(main);
    EXPECT_EQ(program.prompts.messages,
              (Lines{"You must enter the object name!", "Object name can not be longer than 9 characters!",
                     "You must enter latitude and longitude!"}));
    form.shown.txtLat = "37.5";
    form.shown.txtLon = "-122.25";
    bServerFails = true;
    frmObject_Send(main);
    EXPECT_EQ(program.prompts.messages.back(), "Position report not sent correctly, check TNC connection!");
    EXPECT_FALSE(program.dialogs.IsVisible(Form::frmObject));
}

// The counts stand still with nothing open and outlast a change of the interval.
TEST_F(Sending, BeaconsCountTheirTicks)
{
    const auto sentIn = [&](int ticks, const char* settings) {
        program.Set(settings);
        AddMyStationNode(main);
        for (int i = 0; i < ticks; ++i)
            intervalTimer_Timer(main);
        return Take().size();
    };
    EXPECT_EQ(sentIn(1, "PositionInt=3"), 0U);
    EXPECT_EQ(main.beacons.positionTicks, 0);
    Open(false, false, true);
    EXPECT_EQ(sentIn(11, "PositionInt=3"), 2U);
    EXPECT_EQ(sentIn(1, "PositionInt=2"), 1U);
    EXPECT_EQ(sentIn(8, "Lat="), 0U);
    for (const char* index : {"PositionInt=0", "PositionInt=12", "PositionInt=-1", "PositionInt=x"}) {
        sentIn(0, index);
        EXPECT_EQ(main.beacons.positionInterval, 0) << index;
    }
}

TEST_F(Sending, ABeaconWithTooLongACommentIsTold)
{
    Open(false, false, true);
    program.Set("PositionInt=1");
    Set(Setting::Comment, std::string(44, 'x'));
    AddMyStationNode(main);
    intervalTimer_Timer(main);
    main.beacons.bTailBoxOpen = true; // It still stands.
    intervalTimer_Timer(main);
    EXPECT_EQ(program.prompts.messages, Lines{"Comment can not be longer than 43 characters!"});
    EXPECT_EQ(program.notices.lines, Lines{"The position is not reported: its comment is too long"});
    EXPECT_EQ(Take(), Lines{});
}

} // namespace
} // namespace ruvenmark
