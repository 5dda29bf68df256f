#include "outgoing/weather_report.h"

#include "core/main_window.h"
#include "outgoing/report_text.h"
#include "outgoing/send_report.h"
#include "outgoing/weather_report_form_rules.h"
#include "platform/numbers.h"

namespace ruvenmark {

namespace {

enum class Reading : std::uint8_t { Whole, AsStored, Humidity };
struct FieldInfo {
    Setting setting;
    char letter;
    std::int16_t width;
    Reading reading;
};
constexpr std::array<FieldInfo, 9> kFields = {{{Setting::WindDir, 'c', 3, Reading::Whole},
                                               {Setting::WindSpeed, 's', 3, Reading::Whole},
                                               {Setting::Gust, 'g', 3, Reading::Whole},
                                               {Setting::Temperature, 't', 3, Reading::Whole},
                                               {Setting::Rain1, 'r', 3, Reading::AsStored},
                                               {Setting::Rain24, 'p', 3, Reading::AsStored},
                                               {Setting::Rain12, 'P', 3, Reading::AsStored},
                                               {Setting::Humidity, 'h', 2, Reading::Humidity},
                                               {Setting::Pressure, 'b', 5, Reading::AsStored}}};

std::string ValueOf(const MainWindow& main, const FieldInfo& field)
{
    constexpr std::int16_t kFullHumidity = 100;
    const std::string& text = SettingText(main.Settings, field.setting);
    if (field.reading == Reading::Whole)
        return ShortText(std::int64_t{ToInt16(text)});
    if (text.empty())
        return "0";
    if (field.reading == Reading::AsStored)
        return text;
    const std::int16_t humidity = ToInt16(text);
    return humidity >= kFullHumidity ? "00" : ShortText(std::int64_t{humidity});
}

} // namespace

std::string WeatherReportText(const UtcTime& utc, const WeatherValues& values)
{
    std::string text = "_";
    for (const std::int32_t part : {utc.month, utc.day, utc.hour, utc.minute})
        text += Padded(std::int64_t{part}, 2);
    for (std::size_t i = 0; i < kFields.size(); ++i)
        text += kFields[i].letter + Padded(values[i], kFields[i].width);
    return text;
}

void SendWeatherReport(MainWindow& main)
{
    Attempt(main.abandoned, "SendWeatherReport", [&] {
        WeatherValues values;
        for (std::size_t i = 0; i < kFields.size(); ++i)
            values[i] = ValueOf(main, kFields[i]);
        SendOwnReport(main, WeatherReportText(main.services.clock.UtcNow(), values), OpenRoads(main.links, true, true));
    });
}

void mnuSendWeather_Click(MainWindow& main)
{
    WeatherReportForm& form = main.frmWeather;
    frmWeather_Load(main);
    main.services.dialogs.Run(Form::frmWeather, main);
    if (form.bCancelled)
        return;
    WeatherValues values;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = form.boxes[i].empty() ? "0" : ShortText(std::int64_t{ToInt32(form.boxes[i])});
    SendByHand(main, form.calls, form.roads, WeatherReportText(main.services.clock.UtcNow(), values),
               "Weather report not sent correctly, check TNC connection!");
}

} // namespace ruvenmark
