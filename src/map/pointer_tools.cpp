#include "map/pointer_tools.h"

#include "core/main_window.h"
#include "core/views.h"
#include "map/directions.h"
#include "platform/numbers.h"

#include <array>
#include <cstddef>

namespace ruvenmark {

namespace {

// Who may wait for a click, and what the click gives it.
struct PinPointTarget {
    std::string_view source;
    bool (*isVisible)(const MainWindow& main);
    void (*take)(MainWindow& main, const Location& location);
};

bool IsFilterVisible(const MainWindow& main)
{
    return main.services.dialogs.IsFilterVisible();
}

// By the tab in front, as it stands now.
void TakeForFilter(MainWindow& main, const Location& location)
{
    const LatLonText text = LocationToLatLon(location);
    ReportFilter& fields = main.frmFilter.fields.at(static_cast<std::size_t>(main.frmFilter.SSTab1));
    fields.Lat = text.lat;
    fields.Lon = text.lon;
}

bool IsItineraryVisible(const MainWindow& main)
{
    return main.mpCtrl.ItineraryVisible();
}

template <std::size_t kEnd>
void TakeForDirections(MainWindow& main, const Location& location)
{
    SetDirectionsEnd(main, kEnd, {"", ShownPoint(location.Point())});
}

constexpr std::array kTargets = {
    PinPointTarget{kPinPointFilter, IsFilterVisible, TakeForFilter},
    PinPointTarget{kPinPointFrom, IsItineraryVisible, TakeForDirections<0>},
    PinPointTarget{kPinPointTo, IsItineraryVisible, TakeForDirections<1>},
};

} // namespace

LatLonText LocationToLatLon(const Location& location)
{
    const GeoPoint shown = ShownPoint(location.Point());
    return {ShortText(shown.lat), ShortText(shown.lon)};
}

void StartPinPoint(MainWindow& main, std::string_view source)
{
    main.services.dialogs.StandAside();
    ShowMapView(main.window);
    if (main.mpCtrl.MousePointer() != kPointerCross)
        main.map.mousePtr = main.mpCtrl.MousePointer();
    main.mpCtrl.SetMousePointer(kPointerCross);
    main.map.PinPointSource = source;
}

void mpCtrl_MouseMove(MainWindow& main, double x, double y)
{
    Attempt(main.abandoned, "mpCtrl_MouseMove", [&] {
        const LatLonText text = LocationToLatLon(main.mpCtrl.RequireMap().XYToLocation(x, y));
        main.sbStatusBar.SetCoordinates(text.lat + ", " + text.lon);
    });
}

bool mpCtrl_Click(MainWindow& main, double x, double y)
{
    if (main.mpCtrl.MousePointer() != kPointerCross)
        return false;
    main.mpCtrl.SetMousePointer(main.map.mousePtr);
    for (const PinPointTarget& target : kTargets) {
        if (target.source != main.map.PinPointSource || !target.isVisible(main))
            continue;
        Attempt(main.abandoned, "mpCtrl_Click",
                [&] { target.take(main, main.mpCtrl.RequireMap().XYToLocation(x, y)); });
    }
    main.services.dialogs.ComeBack();
    return true;
}

} // namespace ruvenmark
