#include "outgoing/position_form_rules.h"

#include "core/main_window.h"
#include "map/pointer_tools.h"
#include "outgoing/position_report.h"
#include "outgoing/report_text.h"
#include "outgoing/send_report.h"
#include "platform/numbers.h"

#include <optional>

namespace ruvenmark {

namespace {

constexpr auto kWhole = NumberRule::Kind::Whole;
constexpr auto kDecimal = NumberRule::Kind::Decimal;

bool IsPositionVisible(const MainWindow& main)
{
    return main.services.dialogs.IsVisible(Form::frmPosition);
}

void TakePoint(MainWindow& main, GeoPoint point)
{
    const LatLonText text = TextOfPoint(point);
    main.frmPosition.txtLat = text.lat;
    main.frmPosition.txtLon = text.lon;
}

std::string_view Missing(const PositionForm& form)
{
    if (form.calls.txtFrom.empty() || form.calls.txtTo.empty())
        return "You must enter call sign and unproto!";
    if (form.txtLat.empty() || form.txtLon.empty())
        return "You must enter latitude and longitude!";
    return {};
}

template <class Number>
void KeepNumber(Number& kept, const std::string& text)
{
    const double value = text.empty() ? 0 : ToDouble(text);
    if constexpr (sizeof(Number) == sizeof(std::int16_t))
        kept = ToInt16(value);
    else
        kept = ToInt32(value);
}

void KeepFields(PositionForm& form)
{
    Keep(form.calls);
    form.Symbol = form.cboSymbol;
    form.Latitude = ToDouble(form.txtLat);
    form.Longitude = ToDouble(form.txtLon);
    KeepNumber(form.Altitude, form.txtAlt);
    KeepNumber(form.Power, form.txtPower);
    KeepNumber(form.Height, form.txtHeight);
    KeepNumber(form.Gain, form.txtGain);
    KeepNumber(form.Directivity, form.txtDir);
}

PositionReportData DataOfForm(const PositionForm& form)
{
    return {.lat = form.Latitude,
            .lon = form.Longitude,
            .symbol = form.Symbol,
            .motion = {},
            .power = form.Power,
            .height = form.Height,
            .gain = form.Gain,
            .directivity = form.Directivity,
            .altitude = form.Altitude,
            .comment = form.txtComment};
}

} // namespace

const std::array<PositionBox, 7> kPositionBoxes = {{
    {"txtAlt", &PositionForm::txtAlt, {kWhole, 0, 999999, "Enter a number between 0 and 999999 for altitude!", "0"}},
    {"txtPower", &PositionForm::txtPower, {kWhole, 0, 5000, "Enter an interger between 0 and 5000 for power!", "0"}},
    {"txtHeight",
     &PositionForm::txtHeight,
     {kWhole, 0, 2000000000, "Enter a number between 0 and 2000000000 for height!", "0"}},
    {"txtGain", &PositionForm::txtGain, {kWhole, 0, 9, "Enter an interger between 0 and 9 for gain!", "0"}},
    {"txtDir", &PositionForm::txtDir, {kWhole, 0, 360, "Enter an interger between 0 and 360 for directivity!", "0"}},
    {"txtLat", &PositionForm::txtLat, {kDecimal, -90, 90, "Enter a value between -90 and 90 for latitude!", "0.0"}},
    {"txtLon",
     &PositionForm::txtLon,
     {kDecimal, -180, 180, "Enter a value between -180 and 180 for longitude!", "0.0"}},
}};

void frmPosition_Load(MainWindow& main)
{
    PositionForm& form = main.frmPosition;
    const auto shown = [&](double kept, Setting setting) {
        return kept == 0 ? SettingText(main.Settings, setting) : ShortText(kept);
    };
    Load(form.roads, main.links);
    Load(form.calls, main.Settings);
    form.txtLat = shown(form.Latitude, Setting::Lat);
    form.txtLon = shown(form.Longitude, Setting::Lon);
    form.txtAlt = shown(form.Altitude, Setting::Alt);
    form.txtPower = ShortText(std::int64_t{form.Power});
    form.txtHeight = ShortText(std::int64_t{form.Height});
    form.txtGain = ShortText(std::int64_t{form.Gain});
    form.txtDir = ShortText(std::int64_t{form.Directivity});
    form.cboSymbol = form.Symbol;
    form.txtComment = form.Comment;
}

void frmPosition_Send(MainWindow& main)
{
    PositionForm& form = main.frmPosition;
    if (const std::string_view missing = Missing(form); !missing.empty())
        return main.services.prompts.Message(missing);
    if (const auto wrong = CheckNumbers(form, kPositionBoxes)) {
        main.services.dialogs.Refresh(Form::frmPosition);
        return main.services.prompts.Message(*wrong);
    }
    KeepFields(form);
    const auto text = PositionReportText(DataOfForm(form));
    if (!text)
        return main.services.prompts.Message(kTailTooLong);
    form.Comment = form.txtComment;
    SendByHand(main, form.calls, form.roads, *text, "Position report not sent correctly, check TNC connection!");
    main.services.dialogs.Hide(Form::frmPosition);
}

void frmPosition_PinPoint(MainWindow& main)
{
    StartPinPoint(main, {IsPositionVisible, TakePoint, Form::frmPosition});
}

void frmPosition_Minimize(MainWindow& main)
{
    main.services.dialogs.StandAside(Form::frmPosition);
    main.sbStatusBar.SetNotice("Send, Position... brings the window back");
}

void mnuSendPosition_Click(MainWindow& main)
{
    if (!IsPositionVisible(main))
        frmPosition_Load(main);
    main.services.dialogs.Show(Form::frmPosition, main);
}

} // namespace ruvenmark
