#include "options/options_rules.h"

#include "contracts/report_source.h"
#include "core/main_window.h"
#include "map/markers.h"
#include "map/names_state.h"
#include "map/pointer_tools.h"
#include "outgoing/my_station.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "tracking/track_lines.h"

#include <optional>
#include <utility>

namespace ruvenmark {

namespace {

constexpr FileFilter kWaveFiles = {"Wave Files (*.wav)", "*.wav"};
constexpr FileFilter kMapFiles = {"Mappoint Files (*.ptm)", "*.ptm"};
constexpr FileFilter kLogFiles = {"Log Files (*.log)", "*.log"};

bool IsVisible(const MainWindow& main)
{
    return main.services.dialogs.IsVisible(Form::frmOptions);
}

OptionField FieldFromSettings(MainWindow& main, const OptionBox& box)
{
    OptionField field;
    Attempt(main.abandoned, "frmOptions", [&] {
        switch (box.kind) {
        case OptionKind::Tick:
        case OptionKind::DigitTick:
        case OptionKind::Radio:
            field.bTicked = SettingBool(main.Settings, box.setting);
            break;
        case OptionKind::List:
            if (const auto index = SettingInt32(main.Settings, box.setting);
                index >= 0 && std::cmp_less(index, ChoicesOf(box).size()))
                field.choice = index;
            break;
        default:
            field.text = SettingText(main.Settings, box.setting);
        }
    });
    return field;
}

// Rain and pressure go on the air as they are stored, where "+12" or "1e2" cannot be read. A fraction stays: another
// number would be told in its place.
std::string TextToStore(OptionsForm& form, const OptionBox& box)
{
    const std::string& text = FieldOf(form, box).text;
    const bool bTypedWhole = box.rule && box.rule->kind == NumberRule::Kind::Whole && IsTouched(form, box);
    if (!bTypedWhole || text.empty())
        return text;
    const std::int32_t whole = ToInt32(text);
    return ToDouble(text) == whole ? ShortText(std::int64_t{whole}) : text;
}

void StoreBox(MainWindow& main, const OptionBox& box)
{
    const OptionField& field = FieldOf(main.frmOptions, box);
    SettingsState& settings = main.Settings;
    // What a link measured or a command set while the dialog stood open stays.
    if (!IsTouched(main.frmOptions, box) && FieldFromSettings(main, box) != field)
        return;
    switch (box.kind) {
    case OptionKind::DigitTick:
        return SetSetting(settings, box.setting, field.bTicked ? "1" : "0");
    case OptionKind::Tick:
    case OptionKind::Radio:
        return SetSetting(settings, box.setting, BoolText(field.bTicked));
    case OptionKind::List:
        if (field.choice >= 0) // Else the setting stays until an entry is chosen.
            SetSetting(settings, box.setting, ShortText(std::int64_t{field.choice}));
        return;
    default:
        SetSetting(settings, box.setting, TextToStore(main.frmOptions, box));
    }
}

// With the page of the box in front.
void Complain(MainWindow& main, const OptionBox& box, std::string_view message)
{
    main.frmOptions.SSTab1 = static_cast<int>(PageOf(box));
    main.services.dialogs.Refresh(Form::frmOptions);
    main.services.prompts.Message(message);
}

bool IsComplete(MainWindow& main)
{
    for (const Setting required : {Setting::Call, Setting::Dest})
        if (FieldOf(main.frmOptions, required).text.empty()) {
            Complain(main, BoxOf(required), "You must enter call sign and unproto path!");
            return false;
        }
    // Enter saves without leaving the box. What the links measured may lie out of bounds and is nobody's mistake.
    for (const OptionBox& box : kOptionBoxes) {
        if (!IsTouched(main.frmOptions, box))
            continue;
        if (const std::string message = frmOptions_LostFocus(main.frmOptions, box); !message.empty()) {
            Complain(main, box, message);
            return false;
        }
    }
    return true;
}

// The markers that stand follow their channel's tick where that has changed; else each keeps what it was given.
void ShowNames(MainWindow& main, Channel channel)
{
    const TreeNode* root = main.tvStationList.Find(Traits(channel).word);
    if (!root)
        return;
    const std::int32_t state = NamesState(main, channel);
    ForEachMarkerOfRoot(main, *root, [&](Pushpin& pin) { pin.SetBalloonState(state); });
}

// Black tells a moving station from no other: then the last speed of its record does.
bool IsMoving(const ChannelState& channel, const TreeNode& station, std::uint32_t formerColor)
{
    if (formerColor != 0)
        return station.Color() == formerColor;
    const Record* record = channel.Stations.Find(station.Text());
    const std::string_view speed = record ? record->Get(Field::Speed) : std::string_view();
    return !speed.empty() && speed != "0";
}

void ColorMovingStations(MainWindow& main, std::uint32_t formerColor)
{
    const std::uint32_t color = MobileColor(main.Settings);
    if (color == formerColor)
        return;
    KeyedTree& tree = main.tvStationList;
    for (const ChannelState& channel : main.channels) {
        const TreeNode* root = tree.Find(Traits(channel.channel).word);
        const TreeNode* folder = root ? tree.Find(*root, kPositions) : nullptr;
        if (!folder)
            continue;
        for (const auto& station : folder->Children())
            if (IsMoving(channel, *station, formerColor))
                tree.SetColor(*station, color);
    }
}

void Store(MainWindow& main)
{
    const std::uint32_t formerColor = MobileColor(main.Settings);
    const auto willChange = [&](Channel channel, Setting setting) {
        return IsTouched(main.frmOptions, BoxOf(setting)) &&
               !IsNamesState(main, channel, FieldOf(main.frmOptions, setting).bTicked);
    };
    const bool bRfNames = willChange(Channel::RF, Setting::ShowRFNames);
    const bool bTcpNames = willChange(Channel::TCP, Setting::ShowTCPNames);
    for (const OptionBox& box : kOptionBoxes)
        StoreBox(main, box);
    AddMyStationNode(main);
    if (bRfNames)
        Attempt(main.abandoned, "frmOptions, names", [&] { ShowNames(main, Channel::RF); });
    if (bTcpNames)
        Attempt(main.abandoned, "frmOptions, names", [&] { ShowNames(main, Channel::TCP); });
    Attempt(main.abandoned, "frmOptions, colour", [&] { ColorMovingStations(main, formerColor); });
    ShowOwnCall(main);
}

void TakePoint(MainWindow& main, GeoPoint point)
{
    const LatLonText text = TextOfPoint(point);
    FieldOf(main.frmOptions, Setting::Lat).text = text.lat;
    FieldOf(main.frmOptions, Setting::Lon).text = text.lon;
}

// Nothing leaves the page in front as it is.
void ShowOptions(MainWindow& main, std::optional<OptionPage> page)
{
    if (!IsVisible(main))
        frmOptions_Load(main);
    if (page)
        main.frmOptions.SSTab1 = static_cast<int>(*page);
    main.services.dialogs.Show(Form::frmOptions, main);
}

OptionPage PageOfNode(const TreeNode* node)
{
    const std::string key = node ? node->Key() : std::string();
    if (key == kMyPosition)
        return OptionPage::Position;
    return key == kMyWeather ? OptionPage::Weather : OptionPage::General;
}

} // namespace

void frmOptions_Load(MainWindow& main)
{
    for (const OptionBox& box : kOptionBoxes)
        FieldOf(main.frmOptions, box) = FieldFromSettings(main, box);
    main.frmOptions.opened = main.frmOptions.fields;
}

std::string frmOptions_LostFocus(OptionsForm& form, const OptionBox& box)
{
    return box.rule ? CheckNumber(FieldOf(form, box).text, *box.rule).value_or(std::string()) : std::string();
}

bool IsPinPointOffered(const OptionsForm& form)
{
    return form.SSTab1 == static_cast<int>(OptionPage::Position);
}

void frmOptions_Save(MainWindow& main)
{
    // A message for the station names it letter for letter.
    for (const Setting call : {Setting::Call, Setting::Dest, Setting::Path, Setting::MessageSubnet, Setting::Tactical})
        if (IsTouched(main.frmOptions, BoxOf(call))) {
            std::string& text = FieldOf(main.frmOptions, call).text;
            text = Trim(text);
            if (call == Setting::Call)
                text = ToUpper(text);
        }
    if (!IsComplete(main))
        return;
    Store(main);
    main.services.dialogs.Hide(Form::frmOptions);
}

void frmOptions_PinPoint(MainWindow& main)
{
    StartPinPoint(main, {IsVisible, TakePoint, Form::frmOptions});
}

void frmOptions_Browse(MainWindow& main, const OptionBox& box)
{
    IPrompts& prompts = main.services.prompts;
    std::optional<std::string> file;
    if (box.kind == OptionKind::Log)
        file = prompts.SaveFile("Save", kLogFiles);
    else
        file = prompts.OpenFile("Open", box.kind == OptionKind::Map ? kMapFiles : kWaveFiles);
    if (file)
        FieldOf(main.frmOptions, box).text = std::move(*file);
}

void mnuViewOptions_Click(MainWindow& main)
{
    ShowOptions(main, std::nullopt);
}

void mnuMsgboxOptions_Click(MainWindow& main)
{
    ShowOptions(main, OptionPage::Message);
}

void mnuMyStationEdit_Click(MainWindow& main)
{
    ShowOptions(main, PageOfNode(main.tvStationList.Selected()));
}

} // namespace ruvenmark
