#include "map/pointer_tools.h"
#include "options/options_rules.h"
#include "outgoing/my_station.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <map>
#include <tuple>

namespace ruvenmark {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using S = Setting;

class Options : public testing::Test {
protected:
    Options()
    {
        Set(S::Call, "N0CALL");
        Set(S::Dest, "APRS");
    }
    void Set(Setting setting, std::string_view text) { SetSetting(main.Settings, setting, text); }
    const std::string& Kept(Setting setting) { return SettingText(main.Settings, setting); }
    std::string& Text(Setting setting) { return FieldOf(main.frmOptions, setting).text; }
    bool IsOpen() const { return program.dialogs.IsVisible(Form::frmOptions); }

    TestProgram program;
    MainWindow& main = program.main;
};

// A bound on another box, or another than its message tells.
TEST_F(Options, BoxesTakeWhatTheirMessagesSayAndNothingBeyond)
{
    const auto expect = [&](const OptionBox& box, const std::string& typed, std::string_view message) {
        FieldOf(main.frmOptions, box).text = typed;
        EXPECT_EQ(frmOptions_LostFocus(main.frmOptions, box), message) << box.control << ' ' << typed;
        EXPECT_EQ(FieldOf(main.frmOptions, box).text, message.empty() ? typed : "");
    };
    std::string bounded;
    for (const OptionBox& box : kOptionBoxes) {
        int lowest = 0, highest = 0;
        const std::string_view message = box.rule ? box.rule->message : "";
        if (std::sscanf(message.data(), "%*[^-0-9]%d and %d", &lowest, &highest) != 2)
            continue;
        for (const int taken : {lowest, highest})
            expect(box, std::to_string(taken), "");
        for (const int beyond : {lowest - 1, highest + 1})
            expect(box, std::to_string(beyond), message);
        expect(box, "", "");
        expect(box, "a few", message);
        bounded +=
            std::string(message.substr(message.rfind(" for ") + 5)) + ' ' + std::string(Info(box.setting).key) + '|';
    }
    EXPECT_EQ(bounded, "latitude! Lat|longitude! Lon|altitude! Alt|height! Height|directivity! Directivity|"
                       "wind direction! WindDir|wind speed! WindSpeed|gust! Gust|temperature! Temperature|"
                       "rain in the last hour! Rain1|rain in the last 24 hours! Rain24|rain since midnight! Rain12|"
                       "humidity! Humidity|pressure! Pressure|");
    expect(BoxOf(S::Power), "-1", "Enter a positive number for station power!");
    expect(BoxOf(S::Gain), "-40", "");
    Text(S::Gain) = "a few";
    EXPECT_EQ(frmOptions_LostFocus(main.frmOptions, BoxOf(S::Gain)) + Text(S::Gain), "");
}

TEST_F(Options, NothingIsStoredWhileSomethingIsMissingOrWrong)
{
    const std::string missing = "You must enter call sign and unproto path!";
    for (const Setting required : {S::Call, S::Dest}) {
        mnuMyStationEdit_Click(main);
        main.frmOptions.SSTab1 = static_cast<int>(OptionPage::Weather);
        Text(S::Lat) = "5";
        Text(required) = "";
        frmOptions_Save(main);
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(main.frmOptions.SSTab1, 0);
        EXPECT_EQ(Kept(S::Lat), "");
        program.dialogs.Hide(Form::frmOptions);
    }
    mnuViewOptions_Click(main);
    EXPECT_EQ(Text(S::Lat), ""); // What was cancelled is gone.
    Text(S::Lat) = "95";         // Enter was pressed in the box.
    frmOptions_Save(main);
    EXPECT_THAT(program.prompts.messages,
                ElementsAre(missing, missing, "Enter a value between -90 and 90 for latitude!"));
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(main.frmOptions.SSTab1, static_cast<int>(OptionPage::Position));
    frmOptions_Save(main);
    EXPECT_FALSE(IsOpen());
}

// The weather link and the receiver store what they measure; the operator cannot mend it and must be able to save.
TEST_F(Options, WhatNobodyTouchedIsNotComplainedOf)
{
    Set(S::Humidity, "100");
    Set(S::Alt, "-12");
    Set(S::WindSpeed, "4.5");
    mnuViewOptions_Click(main);
    Text(S::Comment) = "hello";
    frmOptions_Save(main);
    EXPECT_THAT(program.prompts.messages, IsEmpty());
    EXPECT_EQ(Kept(S::Comment), "hello");
    EXPECT_EQ(Kept(S::Humidity) + ' ' + Kept(S::Alt) + ' ' + Kept(S::WindSpeed), "100 -12 4.5");
    mnuViewOptions_Click(main);
    Text(S::Humidity) = "101";
    frmOptions_Save(main);
    EXPECT_TRUE(IsOpen());
}

// Else a Save of the comment would send the station back to where it was when the dialog opened.
TEST_F(Options, WhatCameWhileItStoodOpenStaysWhereNobodyTouchedIt)
{
    mnuViewOptions_Click(main);
    Set(S::Lat, "48.5");
    Set(S::Lon, "9.5");
    Set(S::ShowRFNames, "0");
    Set(S::DefaultMap, "/new.ptm");
    Set(S::PositionInt, "3");
    Text(S::Comment) = "hello";
    Text(S::Lon) = "10";
    frmOptions_Save(main);
    EXPECT_EQ(Kept(S::Comment) + ' ' + Kept(S::Lat) + ' ' + Kept(S::Lon), "hello 48.5 10");
    EXPECT_EQ(Kept(S::ShowRFNames) + ' ' + Kept(S::DefaultMap) + ' ' + Kept(S::PositionInt), "0 /new.ptm 3");
}

// A call in small letters is deaf to its messages; " 12" spoils a weather report, which goes out as stored, and
// "1013.2" would be read as another pressure if it were rounded.
TEST_F(Options, WhatWasTypedIsStoredAsItMustGoOut)
{
    mnuViewOptions_Click(main);
    Text(S::Call) = " n1call-7 ";
    Text(S::Path) = " Wide2-2 "; // Only the call in large letters.
    Text(S::MessageSubnet) = "APRS ";
    Text(S::Rain1) = " 12";
    Text(S::Pressure) = "1013.2";
    Text(S::Alt) = "1e2";
    Text(S::Lat) = "47.50"; // No whole number.
    frmOptions_Save(main);
    EXPECT_EQ(Kept(S::Call) + ' ' + Kept(S::Path), "N1CALL-7 Wide2-2");
    EXPECT_EQ(Kept(S::MessageSubnet), "APRS");
    EXPECT_EQ(Kept(S::Rain1) + ' ' + Kept(S::Pressure) + ' ' + Kept(S::Alt) + ' ' + Kept(S::Lat),
              "12 1013.2 100 47.50");
    mnuViewOptions_Click(main);
    Text(S::Call) = "  ";
    frmOptions_Save(main);
    EXPECT_TRUE(IsOpen());
}

// Every setting is loaded into its own box and stored from it; one that reads as nothing known is left alone.
TEST_F(Options, SaveStoresWhatTheBoxesShow)
{
    Set(S::ShowTCPNames, "0");
    Set(S::All, "1");
    Set(S::Symbol, "40"); // Of no entry.
    mnuViewOptions_Click(main);
    OptionsForm& form = main.frmOptions;
    EXPECT_TRUE(FieldOf(form, S::ShowRFNames).bTicked);
    EXPECT_FALSE(FieldOf(form, S::ShowTCPNames).bTicked);
    EXPECT_EQ(FieldOf(form, S::Symbol).choice, -1);
    std::map<Setting, std::string> expected = {
        {S::Call, "N1CALL"}, {S::ShowRFNames, "0"}, {S::ReceiveBulletin, "False"},
        {S::All, "True"},    {S::Symbol, "40"},     {S::PositionInt, "1"}};
    for (const OptionBox& box : kOptionBoxes) {
        FieldOf(form, box).text = std::to_string(expected.size());
        if (box.kind == OptionKind::Text || box.kind == OptionKind::Number || box.kind >= OptionKind::Wave)
            expected.try_emplace(box.setting, FieldOf(form, box).text);
    }
    Text(S::Call) = "N1CALL";
    FieldOf(form, S::ShowRFNames).bTicked = false;
    FieldOf(form, S::ReceiveBulletin).bTicked = false;
    FieldOf(form, S::PositionInt).choice = 1;
    frmOptions_Save(main);
    for (const auto& [setting, kept] : expected)
        EXPECT_EQ(Kept(setting), kept) << Info(setting).key;
}

TEST_F(Options, ASaveTakesEffectAtOnce)
{
    for (const Channel channel : {Channel::RF, Channel::TCP})
        program.Position(channel, "N2CALL", 40, -80);
    program.Sink(Channel::RF).ReportPosExt({"N3CALL", "APRS", 41, -80, kAbsent, 20});
    const TreeNode* moving = program.Node("RFPositionsN3CALL");
    program.Marker("N2CALL(t)")->SetBalloonState(2); // Opened by hand.

    const auto save = [&](const char* comment, int color) {
        mnuViewOptions_Click(main);
        Text(S::Comment) = comment;
        Text(S::Lat) = "37.5";
        Text(S::Lon) = "-122.25";
        Text(S::Call) = "N1CALL";
        FieldOf(main.frmOptions, S::PositionInt).choice = 3;
        FieldOf(main.frmOptions, S::ShowRFNames).bTicked = false;
        FieldOf(main.frmOptions, S::MobileColor).choice = color;
        frmOptions_Save(main);
        EXPECT_THAT(program.ChildTexts("MyPosition"),
                    ElementsAre("Lat: 37.5°", "Lon: -122.25°", "Path: WIDE2-2", comment));
        EXPECT_EQ(moving->Color(), color == 4 ? 16711680U : 0U);
    };
    save("hello", 0);
    EXPECT_EQ(main.sbStatusBar.PanelText(Panel::Call), "N1CALL");
    EXPECT_EQ(main.beacons.positionInterval, 4);
    EXPECT_EQ(program.Marker("N2CALL(r)")->BalloonState(), 0);
    EXPECT_EQ(program.Marker("N2CALL(t)")->BalloonState(), 2); // Its tick has not changed.
    save("bye", 4);
    EXPECT_EQ(program.Node("RFPositionsN2CALL")->Color(), 0U);
}

TEST_F(Options, PinPointTakesTheClickOnThePositionPageAlone)
{
    program.Select("MyPosition");
    mnuMyStationEdit_Click(main);
    OptionsForm& form = main.frmOptions;
    EXPECT_TRUE(IsPinPointOffered(form));
    form.SSTab1 = static_cast<int>(OptionPage::Weather);
    EXPECT_FALSE(IsPinPointOffered(form));
    program.TheMap().SetSize(800, 600);
    program.TheMap().SetView({48.5, -11.25}, 12);
    frmOptions_PinPoint(main);
    EXPECT_TRUE(mpCtrl_Click(main, 400, 300));
    EXPECT_EQ(Text(S::Lat) + ' ' + Text(S::Lon), "48.5 -11.25");
    EXPECT_EQ(Kept(S::Lat), ""); // Not before Save.
}

TEST_F(Options, EachWayInOpensItsPageAndKeepsWhatWasTyped)
{
    const std::tuple<const char*, MenuEntry, OptionPage> kWays[] = {
        {"MyWeather", MenuEntry::mnuMyStationEdit, OptionPage::Weather},
        {"MyPosition", MenuEntry::mnuMyStationEdit, OptionPage::Position},
        {"My", MenuEntry::mnuMsgboxOptions, OptionPage::Message},
        {"My", MenuEntry::mnuViewOptions, OptionPage::Message},
        {"My", MenuEntry::mnuMyStationEdit, OptionPage::General}};
    for (const auto& [node, entry, page] : kWays) {
        program.Select(node);
        RunMenuEntry(main, entry);
        EXPECT_EQ(static_cast<OptionPage>(main.frmOptions.SSTab1), page);
        Text(S::Tactical) += '!';
    }
    EXPECT_EQ(Text(S::Tactical), "!!!!!");
}

TEST_F(Options, BrowsingFillsTheBoxOrLeavesIt)
{
    mnuViewOptions_Click(main);
    program.prompts.files = {"/sounds/ping.wav"};
    frmOptions_Browse(main, BoxOf(S::WaveFile));
    EXPECT_EQ(Text(S::WaveFile), "/sounds/ping.wav");
    frmOptions_Browse(main, BoxOf(S::WaveFile)); // Cancelled.
    EXPECT_EQ(Text(S::WaveFile), "/sounds/ping.wav");
}

// Whoever starts without a call is told where to put it, until something else is to be told.
TEST(FirstStart, SaysHowToBegin)
{
    TestProgram program;
    EXPECT_THAT(program.main.sbStatusBar.Notice(), testing::HasSubstr("View, Settings..."));
    EXPECT_EQ(program.main.sbStatusBar.PanelText(Panel::Call), "No Call Sign");
    RunMenuEntry(program.main, MenuEntry::mnuViewOptions);
    EXPECT_EQ(program.main.sbStatusBar.Notice(), "");

    TestProgram known(false);
    known.store.Set("Call", "N0CALL");
    StartMainWindow(known.main);
    EXPECT_EQ(known.main.sbStatusBar.Notice(), "");
}

} // namespace
} // namespace ruvenmark
