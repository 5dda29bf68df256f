#include "tracking/filter_form_rules.h"

#include "core/main_window.h"
#include "map/pointer_tools.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <cstddef>
#include <limits>

namespace ruvenmark {

namespace {

// What a field may hold.
struct FieldRule {
    FilterField field;
    std::string ReportFilter::*text;
    double lowest, highest;
    std::string_view message;
};
constexpr double kEndless = std::numeric_limits<double>::infinity();
constexpr std::array kRules = {
    FieldRule{FilterField::Lat, &ReportFilter::Lat, -90, 90, "Enter a value between -90 and 90 for latitude!"},
    FieldRule{FilterField::Lon, &ReportFilter::Lon, -180, 180, "Enter a value between -180 and 180 for longitude!"},
    FieldRule{FilterField::Range, &ReportFilter::Range, 0, kEndless, "Enter a positive number for range!"},
};

bool IsFilterVisible(const MainWindow& main)
{
    return main.services.dialogs.IsVisible(Form::frmFilter);
}

// By the tab in front, as it stands now.
void TakePoint(MainWindow& main, GeoPoint point)
{
    const LatLonText text = TextOfPoint(point);
    ReportFilter& fields = main.frmFilter.fields.at(static_cast<std::size_t>(main.frmFilter.SSTab1));
    fields.Lat = text.lat;
    fields.Lon = text.lon;
}

} // namespace

void frmFilter_Load(MainWindow& main)
{
    for (std::size_t i = 0; i < kChannels.size(); ++i)
        main.frmFilter.fields[i] = main.channels[i].Filter;
}

std::string frmFilter_LostFocus(FilterForm& form, Channel channel, FilterField field)
{
    const FieldRule& rule = kRules[static_cast<std::size_t>(field)];
    std::string& text = form.fields[Index(channel)].*rule.text;
    const auto value = ReadNumber(text);
    if (!value || (*value >= rule.lowest && *value <= rule.highest))
        return {};
    text.clear();
    return std::string(rule.message);
}

void frmFilter_Save(MainWindow& main)
{
    for (std::size_t i = 0; i < kChannels.size(); ++i) {
        ReportFilter filter = main.frmFilter.fields[i];
        filter.Dest = ToUpper(filter.Dest);
        filter.Call = ToUpper(filter.Call);
        filter.Reject = ToUpper(filter.Reject);
        main.channels[i].Filter = std::move(filter);
    }
}

void frmFilter_PinPoint(MainWindow& main)
{
    StartPinPoint(main, {IsFilterVisible, TakePoint, Form::frmFilter});
}

void mnuToolsFilter_Click(MainWindow& main)
{
    const std::string_view unit = main.mpCtrl.Units() == kUnitsMiles ? "miles" : "kilometers";
    for (const Channel channel : {Channel::RF, Channel::TCP}) // The label of FL stays as designed.
        main.frmFilter.unitLabels[Index(channel)] = unit;
    if (!main.services.dialogs.IsVisible(Form::frmFilter))
        frmFilter_Load(main);
    main.services.dialogs.Show(Form::frmFilter, main);
}

void ShowFilterOf(MainWindow& main, Channel channel)
{
    main.frmFilter.SSTab1 = static_cast<int>(channel);
    mnuToolsFilter_Click(main);
}

} // namespace ruvenmark
