#include "map/range_circles.h"

#include "core/main_window.h"
#include "core/tree_selection.h"
#include "core/views.h"
#include "map/markers.h"
#include "platform/numbers.h"

#include <cmath>
#include <optional>
#include <string>

namespace ruvenmark {

namespace {

Shape DrawCircle(Map& map, const Location& centre, double range)
{
    Shape circle = map.AddShape(kShapeRadiusCircle, centre, range, range);
    circle.SetForeColor(kColorRed);
    circle.SetWeight(1);
    circle.SetVisible(true);
    return circle;
}

void ShowRange(MainWindow& main, const StationNode& station, ChannelState& state)
{
    const std::string_view call = station.node->Text();
    const double* range = state.StationRanges.Find(call);
    const Record* record = state.Stations.Find(call);
    const auto point = record ? PositionOf(*record) : std::nullopt;
    if (!range || !point)
        return;
    const Location centre = ShowStationMarker(main, station, *record, *point).Location();
    const Shape circle = DrawCircle(main.mpCtrl.RequireMap(), centre, *range);
    ShowMapView(main.window);
    main.tvStationList.SetBold(*station.node, false);
    Attempt(main.abandoned, "mnuShowRange", [&] { DeleteCircle(state, call); });
    state.RangeCircles.Add(call, circle);
}

bool HasGrandparent(const TreeNode* node)
{
    return node && node->Parent() && node->Parent()->Parent();
}

void DeleteMyCircle(MapSession& session)
{
    if (!session.MyRangeCircle)
        return;
    Shape circle = *session.MyRangeCircle;
    session.MyRangeCircle.reset();
    circle.Delete();
}

} // namespace

double StationRange(double power, double height, double gain)
{
    const double gainFactor = std::pow(10.0, gain / 10) / 2;
    const double powerFactor = std::sqrt(power / 10 * gainFactor);
    return std::sqrt(2 * height * powerFactor);
}

void UpdateMyRange(MainWindow& main)
{
    const std::string_view power = SettingText(main.Settings, Setting::Power);
    const std::string_view height = SettingText(main.Settings, Setting::Height);
    const std::string_view gain = SettingText(main.Settings, Setting::Gain);
    const bool bKnown = !power.empty() && !height.empty() && !gain.empty();
    main.map.MyRange = bKnown ? StationRange(ToDouble(power), ToDouble(height), ToDouble(gain)) : 0;
    if (main.map.MyRangeCircle)
        DrawMyRange(main);
}

void DrawMyRange(MainWindow& main)
{
    // One that the map has lost is no reason to draw none.
    Attempt(main.abandoned, "DrawMyRange", [&] { DeleteMyCircle(main.map); });
    const std::string_view lat = SettingText(main.Settings, Setting::Lat);
    const std::string_view lon = SettingText(main.Settings, Setting::Lon);
    if (lat.empty() || lon.empty()) {
        main.map.MyRange = 0;
        return;
    }
    const Location centre = ShowMyMarker(main).Location();
    main.map.MyRangeCircle = DrawCircle(main.mpCtrl.RequireMap(), centre, main.map.MyRange);
}

void DeleteCircle(ChannelState& state, std::string_view call)
{
    if (const Shape* found = state.RangeCircles.Find(call)) {
        Shape circle = *found;
        state.RangeCircles.Remove(call);
        circle.Delete();
    }
}

void DeleteAllCircles(MainWindow& main, ChannelState& state, std::string_view place)
{
    for (auto& [call, circle] : state.RangeCircles)
        Attempt(main.abandoned, place, [&shape = circle] { shape.Delete(); });
    state.RangeCircles.Clear();
}

void mnuShowRange_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    if (station && station->channel)
        Attempt(main.abandoned, "mnuShowRange", [&] { ShowRange(main, *station, main.Of(*station->channel)); });
}

void mnuHideRange_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    if (station && station->channel)
        Attempt(main.abandoned, "mnuHideRange",
                [&] { DeleteCircle(main.Of(*station->channel), station->node->Text()); });
}

void mnuHideAllRangeCircles_Click(MainWindow& main)
{
    for (ChannelState& state : main.channels)
        DeleteAllCircles(main, state, "mnuHideAllRangeCircles");
}

void mnuShowMyRange_Click(MainWindow& main)
{
    if (!HasGrandparent(main.tvStationList.Selected()))
        return;
    Attempt(main.abandoned, "mnuShowMyRange", [&] {
        DrawMyRange(main);
        ShowMapView(main.window);
    });
}

void mnuHideMyRange_Click(MainWindow& main)
{
    if (HasGrandparent(main.tvStationList.Selected()))
        Attempt(main.abandoned, "mnuHideMyRange", [&] { DeleteMyCircle(main.map); });
}

} // namespace ruvenmark
