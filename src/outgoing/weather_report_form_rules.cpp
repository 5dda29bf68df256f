#include "outgoing/weather_report_form_rules.h"

#include "core/main_window.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::ptrdiff_t kRequired = 4;

constexpr NumberRule Whole(double lowest, double highest, std::string_view message, std::string_view reset = "0")
{
    return {NumberRule::Kind::Whole, lowest, highest, message, reset};
}

} // namespace

const std::array<WeatherBox, 9> kWeatherBoxes = {{
    {"txtDir", Whole(0, 360, "Enter an interger between 0 and 360 for wind direction!", "")},
    {"txtSpeed", Whole(0, 999, "Enter an interger between 0 and 999 for wind speed!", "")},
    {"txtGust", Whole(0, 999, "Enter an interger between 0 and 999 for gust!", "")},
    {"txtTemp", Whole(-99, 999, "Enter an interger between -99 and 999 for temperature!", "")},
    {"txtRain1", Whole(0, 999, "Enter an interger between 0 and 999 for rain in the last hour!")},
    {"txtRain24", Whole(0, 999, "Enter an interger between 0 and 999 for rain in the last 24 hours!")},
    {"txtRain12", Whole(0, 999, "Enter an interger between 0 and 999 for rain since midnight!")},
    {"txtHumidity", Whole(0, 99, "Enter an interger between 0 and 99 for humidity!")},
    {"txtPressure", Whole(0, 99999, "Enter an interger between 0 and 99999 for pressure!")},
}};

void frmWeather_Load(MainWindow& main)
{
    WeatherReportForm& form = main.frmWeather;
    Load(form.roads, main.links);
    Load(form.calls, main.Settings);
    form.boxes = {};
    form.bCancelled = true;
}

std::string_view frmWeather_Accept(MainWindow& main)
{
    WeatherReportForm& form = main.frmWeather;
    if (form.calls.txtFrom.empty() || form.calls.txtTo.empty())
        return "You must enter call sign and unproto!";
    const auto isEmpty = [](const std::string& text) { return text.empty(); };
    if (std::any_of(form.boxes.begin(), form.boxes.begin() + kRequired, isEmpty))
        return "Wind direction, speed, gust and temperature are required!";
    for (std::size_t i = 0; i < form.boxes.size(); ++i)
        if (!Fits(form.boxes[i], kWeatherBoxes[i].rule))
            return kWeatherBoxes[i].rule.message;
    Keep(form.calls);
    form.bCancelled = false;
    return {};
}

} // namespace ruvenmark
