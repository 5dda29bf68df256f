#include "outgoing/object_report.h"

#include "core/main_window.h"
#include "map/pointer_tools.h"
#include "outgoing/report_text.h"
#include "outgoing/send_report.h"
#include "outgoing/symbol_lists.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace ruvenmark {

namespace {

constexpr std::size_t kNameLength = 9;
using Fields = ObjectForm::Fields;

bool IsObjectVisible(const MainWindow& main)
{
    return main.services.dialogs.IsVisible(Form::frmObject);
}

void TakePoint(MainWindow& main, GeoPoint point)
{
    const LatLonText text = TextOfPoint(point);
    main.frmObject.shown.txtLat = text.lat;
    main.frmObject.shown.txtLon = text.lon;
}

std::string_view Missing(const ObjectForm& form)
{
    if (form.shown.txtName.empty())
        return "You must enter the object name!";
    if (form.shown.txtName.size() > kNameLength)
        return "Object name can not be longer than 9 characters!";
    if (form.calls.txtFrom.empty() || form.calls.txtTo.empty())
        return "You must enter the sender's call sign and unproto!";
    if (form.shown.txtLat.empty() || form.shown.txtLon.empty())
        return "You must enter latitude and longitude!";
    return {};
}

// The comment is kept only with a report that goes out.
void KeepFields(ObjectForm& form)
{
    Keep(form.calls);
    std::string comment = std::move(form.kept.txtComment);
    form.kept = form.shown;
    form.kept.txtName = ToUpper(form.shown.txtName);
    form.kept.txtComment = std::move(comment);
}

} // namespace

const std::array<ObjectBox, 3> kObjectBoxes = {{
    {"txtAlt",
     &Fields::txtAlt,
     {NumberRule::Kind::Whole, 0, 999999, "Enter a number between 0 and 999999 for altitude!", "0"}},
    {"txtLat",
     &Fields::txtLat,
     {NumberRule::Kind::Decimal, -90, 90, "Enter a value between -90 and 90 for latitude!", "0.0"}},
    {"txtLon",
     &Fields::txtLon,
     {NumberRule::Kind::Decimal, -180, 180, "Enter a value between -180 and 180 for longitude!", "0.0"}},
}};

std::optional<std::string> ObjectReportText(const Fields& fields, const UtcTime& utc)
{
    std::string tail;
    if (const std::int32_t altitude = fields.txtAlt.empty() ? 0 : ToInt32(fields.txtAlt); altitude != 0)
        tail = "/A=" + ShortText(std::int64_t{altitude});
    tail += fields.txtComment;
    if (tail.size() > kLongestTail)
        return std::nullopt;
    std::string text = ';' + fields.txtName;
    text.resize(1 + kNameLength, ' ');
    text += fields.cboState == 0 ? '*' : '_';
    for (const std::int32_t part : {utc.day, utc.hour, utc.minute})
        text += Padded(std::int64_t{part}, 2);
    text += 'z';
    return text + LatitudeText(ToDouble(fields.txtLat), '\\') + LongitudeText(ToDouble(fields.txtLon)) +
           SymbolCode(ObjectSymbols(), fields.cboSymbol) + tail;
}

void frmObject_Load(MainWindow& main)
{
    ObjectForm& form = main.frmObject;
    Load(form.roads, main.links);
    Load(form.calls, main.Settings);
    form.shown = form.kept;
}

void frmObject_Send(MainWindow& main)
{
    ObjectForm& form = main.frmObject;
    if (const std::string_view missing = Missing(form); !missing.empty())
        return main.services.prompts.Message(missing);
    if (const auto wrong = CheckNumbers(form.shown, kObjectBoxes)) {
        main.services.dialogs.Refresh(Form::frmObject);
        return main.services.prompts.Message(*wrong);
    }
    KeepFields(form);
    Fields sent = form.kept;
    sent.txtComment = form.shown.txtComment;
    const auto text = ObjectReportText(sent, main.services.clock.UtcNow());
    if (!text)
        return main.services.prompts.Message(kTailTooLong);
    form.kept.txtComment = sent.txtComment;
    SendByHand(main, form.calls, form.roads, *text, "Position report not sent correctly, check TNC connection!");
    main.services.dialogs.Hide(Form::frmObject);
}

void frmObject_PinPoint(MainWindow& main)
{
    StartPinPoint(main, {IsObjectVisible, TakePoint, Form::frmObject});
}

void frmObject_Minimize(MainWindow& main)
{
    main.services.dialogs.StandAside(Form::frmObject);
    main.sbStatusBar.SetNotice("Send, Object... brings the window back");
}

void mnuSendObject_Click(MainWindow& main)
{
    if (!IsObjectVisible(main))
        frmObject_Load(main);
    main.services.dialogs.Show(Form::frmObject, main);
}

} // namespace ruvenmark
