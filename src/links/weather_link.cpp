#include "links/weather_link.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "links/weather_form_rules.h"
#include "outgoing/my_station.h"
#include "platform/numbers.h"

#include <array>

namespace ruvenmark {

namespace {

struct MeasuredValue {
    Setting setting;
    double WeatherUpdate::*value;
    std::string (*text)(double value);
};
// What a report brings as the report sent takes it.
constexpr std::array<MeasuredValue, 8> kValues = {{{Setting::WindSpeed, &WeatherUpdate::windSpeed, ShortText},
                                                   {Setting::Gust, &WeatherUpdate::gust, ShortText},
                                                   {Setting::Temperature, &WeatherUpdate::temperature, NearestText},
                                                   {Setting::Rain1, &WeatherUpdate::rain1, ShortText},
                                                   {Setting::Rain24, &WeatherUpdate::rain24, ShortText},
                                                   {Setting::Rain12, &WeatherUpdate::rain12, ShortText},
                                                   {Setting::Humidity, &WeatherUpdate::humidity, ShortText},
                                                   {Setting::Pressure, &WeatherUpdate::pressure, ShortText}}};

void KeepValues(SettingsState& settings, const WeatherUpdate& update)
{
    if (update.windDir >= 0)
        SetSetting(settings, Setting::WindDir, ShortText(std::int64_t{update.windDir}));
    for (const MeasuredValue& row : kValues)
        if (const double value = update.*row.value; value > kAbsent)
            SetSetting(settings, row.setting, row.text(value));
}

void DropWx(MainWindow& main)
{
    main.links.wx.reset();
    main.links.bWxConnected = false;
}

class WeatherSink final : public IWeatherSink {
public:
    explicit WeatherSink(MainWindow& main) : m_main(main) {}

    void UpdateWeather(const WeatherUpdate& update) override
    {
        KeepValues(m_main.Settings, update);
        UpdateMyWeatherNode(m_main);
    }
    void ConnectionError() override { DropWx(m_main); }

private:
    MainWindow& m_main;
};

void Toggle(MainWindow& main)
{
    if (main.links.bWxConnected) {
        main.links.wx->CloseWxPort();
        DropWx(main);
        return;
    }
    frmWx_Load(main.frmWx);
    main.services.dialogs.Run(Form::frmWx, main);
    ConnectWx(main);
}

} // namespace

void mnuConnectWx_Click(MainWindow& main)
{
    if (AttemptAloud(main, "Weather station connect failed", [&] { Toggle(main); }))
        return;
    DropWx(main);
    main.services.prompts.Message("Weather station connect failed.");
}

void ConnectWx(MainWindow& main)
{
    if (main.frmWx.lWxBaud == 0)
        return;
    LinkState& links = main.links;
    if (!links.wxSink)
        links.wxSink = std::make_unique<WeatherSink>(main);
    links.wx = main.services.weatherServers.CreateWeather(*links.wxSink);
    links.wx->OpenWxPort(main.frmWx.sWxPort, main.frmWx.lWxBaud, kAccessToken);
    links.bWxConnected = true;
}

} // namespace ruvenmark
