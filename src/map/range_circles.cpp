#include "map/range_circles.h"

#include "core/main_window.h"
#include "map/marker_names.h"
#include "map/symbols.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "ui/selection.h"
#include "ui/views.h"

#include <cmath>

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

// The marker stands where the record says, made or moved; its place is the circle's centre.
Location PlaceCentre(Map& map, std::string_view name, const Location& location, std::string_view note)
{
    auto pin = map.FindPushpin(name);
    if (!pin) {
        pin = map.AddPushpin(location, name);
        pin->SetBalloonState(1);
    } else {
        pin->SetLocation(location);
    }
    pin->SetNote(note);
    return pin->Location();
}

void ShowRange(MainWindow& main, const StationNode& station, ChannelState& state)
{
    const std::string& call = station.node->Text();
    const double* range = state.StationRanges.Find(call);
    const Record* record = state.Stations.Find(call);
    if (!range || !record || !record->Has(Field::Lat) || !record->Has(Field::Lon))
        return;
    Map& map = main.mpCtrl.RequireMap();
    const Location location = map.GetLocation(ToDouble(record->Get(Field::Lat)), ToDouble(record->Get(Field::Lon)));
    const Location centre =
        PlaceCentre(map, MarkerName(station.rootKey, call), location, MarkerNote(station.rootKey, *record));
    const Shape circle = DrawCircle(map, centre, *range);
    ShowMapView(main);
    main.tvStationList.SetBold(*station.node, false);
    if (const Shape* found = state.RangeCircles.Find(call)) {
        Shape old = *found;
        state.RangeCircles.Remove(call);
        state.RangeCircles.Add(call, circle);
        old.Delete();
        return;
    }
    state.RangeCircles.Add(call, circle);
}

void HideRange(ChannelState& state, std::string_view call)
{
    if (const Shape* found = state.RangeCircles.Find(call)) {
        Shape circle = *found;
        state.RangeCircles.Remove(call);
        circle.Delete();
    }
}

// The state of the selected station's channel, or null.
ChannelState* SelectedChannel(MainWindow& main, const std::optional<StationNode>& station)
{
    const auto channel = station ? ChannelOfWord(station->rootKey) : std::nullopt;
    return channel ? &main.Of(*channel) : nullptr;
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
    const std::string_view power = SettingText(main.Settings, "Power");
    const std::string_view height = SettingText(main.Settings, "Height");
    const std::string_view gain = SettingText(main.Settings, "Gain");
    const bool bKnown = !power.empty() && !height.empty() && !gain.empty();
    main.map.MyRange = bKnown ? StationRange(ToDouble(power), ToDouble(height), ToDouble(gain)) : 0;
    if (main.map.MyRangeCircle)
        DrawMyRange(main);
}

void DrawMyRange(MainWindow& main)
{
    DeleteMyCircle(main.map);
    const std::string_view lat = SettingText(main.Settings, "Lat");
    const std::string_view lon = SettingText(main.Settings, "Lon");
    if (lat.empty() || lon.empty()) {
        main.map.MyRange = 0;
        return;
    }
    Map& map = main.mpCtrl.RequireMap();
    const Location location = map.GetLocation(ToDouble(lat), ToDouble(lon));
    const std::string_view name = SettingText(main.Settings, "Call");
    auto pin = map.FindPushpin(name);
    if (!pin)
        pin = map.AddPushpin(location, name);
    else
        pin->SetLocation(location);
    pin->SetSymbol(kMyStationSymbol);
    pin->SetBalloonState(1);
    main.map.MyRangeCircle = DrawCircle(map, pin->Location(), main.map.MyRange);
}

void mnuShowRange_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    ChannelState* state = SelectedChannel(main, station);
    if (state)
        Attempt(main.abandoned, "mnuShowRange", [&] { ShowRange(main, *station, *state); });
}

void mnuHideRange_Click(MainWindow& main)
{
    const auto station = SelectedStation(main.tvStationList);
    ChannelState* state = SelectedChannel(main, station);
    if (state)
        Attempt(main.abandoned, "mnuHideRange", [&] { HideRange(*state, station->node->Text()); });
}

void mnuHideAllRangeCircles_Click(MainWindow& main)
{
    for (ChannelState& state : main.channels) {
        for (auto& [call, circle] : state.RangeCircles)
            Attempt(main.abandoned, "mnuHideAllRangeCircles", [&shape = circle] { shape.Delete(); });
        state.RangeCircles.Clear();
    }
}

void mnuShowMyRange_Click(MainWindow& main)
{
    if (!HasGrandparent(main.tvStationList.Selected()))
        return;
    Attempt(main.abandoned, "mnuShowMyRange", [&] {
        DrawMyRange(main);
        ShowMapView(main);
    });
}

void mnuHideMyRange_Click(MainWindow& main)
{
    if (HasGrandparent(main.tvStationList.Selected()))
        Attempt(main.abandoned, "mnuHideMyRange", [&] { DeleteMyCircle(main.map); });
}

} // namespace ruvenmark
