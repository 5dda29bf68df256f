#include "links/weather_form_rules.h"
#include "links/weather_link.h"
#include "support/test_program.h"
#include "ui/menus.h"

#include <gmock/gmock.h>

namespace ruvenmark {
namespace {

using testing::ElementsAre;

struct WeatherLink : testing::Test {
    TestProgram program;
    MainWindow& main = program.main;

    WeatherLink()
    {
        program.dialogs.onRun[Form::frmWx] = [](MainWindow& window) {
            window.frmWx.cboPort = "/dev/wx";
            EXPECT_TRUE(frmWx_Accept(window));
        };
    }
    void Toggle() { mnuConnectWx_Click(main); }
    std::string Caption() const { return StateOf(MenuEntry::mnuConnectWx, {main, nullptr}).caption; }
    // In the order of a report.
    std::string Weather() const
    {
        std::string text;
        for (std::size_t i = 0; i < 9; ++i)
            text += SettingText(main.Settings, Behind(Setting::WindDir, i)) + ' ';
        return text;
    }
};

TEST_F(WeatherLink, KeepsWhatTheStationMeasuresUntilItIsDisconnected)
{
    program.Set("Call=N0CALL");
    Toggle();
    EXPECT_EQ(program.wires.opened, "serial /dev/wx 2400");
    EXPECT_EQ(Caption(), "Disconnect W&x Station");
    program.wires.Say("!!005100BE02EB0064277002A8023A023A0025005800190000\r\n");
    EXPECT_EQ(Weather(), "268 0 0 75 0 0 25 57 10096 "); // Rain since midnight last, temperature whole.
    EXPECT_EQ(program.Image("MyWeather"), "Weather");    // The tree shows it at once.
    Toggle();
    EXPECT_FALSE(program.wires.IsKept());
    EXPECT_EQ(Caption(), "Connect W&x Station...");
}

// A sensor that is not there must not take away what was measured before, and a wind from 0 degrees is a wind.
TEST_F(WeatherLink, MissingValuesLeaveTheFormerOnes)
{
    Toggle();
    IWeatherSink& sink = *main.links.wxSink;
    sink.UpdateWeather({0, 5.5, 7.5, 70.5, 1, 24, 12, 57, 10096});
    EXPECT_EQ(Weather(), "0 5.5 7.5 70 1 24 12 57 10096 ");
    sink.UpdateWeather({-1, -999, -1000, -999, -999, -999, -999, -999, -999});
    EXPECT_EQ(Weather(), "0 5.5 7.5 70 1 24 12 57 10096 ");
    sink.UpdateWeather({.temperature = -998.4});
    EXPECT_EQ(Weather(), "0 5.5 7.5 -998 1 24 12 57 10096 ");
}

TEST_F(WeatherLink, FailsAloudAtTheConnectAndQuietlyLater)
{
    program.wires.bRefuse = true;
    Toggle();
    EXPECT_THAT(program.prompts.messages, ElementsAre("Weather station connect failed."));
    EXPECT_FALSE(main.links.bWxConnected || main.links.wx);
    program.wires.bRefuse = false;
    Toggle();
    program.wires.Lose();
    EXPECT_FALSE(main.links.bWxConnected || main.links.wx);
    EXPECT_EQ(program.prompts.messages.size(), 1U);
}

TEST_F(WeatherLink, DialogComesWithTheLastPortAndOneRate)
{
    program.dialogs.onRun[Form::frmWx] = [](MainWindow& window) {
        WxForm& form = window.frmWx;
        EXPECT_EQ(kWxBauds.at(static_cast<std::size_t>(form.cboBaud)), 2400);
        EXPECT_EQ(frmWx_Accept(window), form.cboPort == "/dev/wx"); // No port the first time.
        form.cboPort = "/dev/wx";
        form.cboBaud = 4;
        EXPECT_TRUE(frmWx_Accept(window));
    };
    for (int i = 0; i < 3; ++i)
        Toggle(); // Connects, disconnects, connects.
    EXPECT_EQ(program.wires.opened, "serial /dev/wx 19200");
    EXPECT_THAT(program.prompts.messages, ElementsAre("You must select port and baud rate!"));
}

} // namespace
} // namespace ruvenmark
