#include "map/pointer_tools.h"

#include "core/main_window.h"
#include "core/views.h"
#include "map/coordinates.h"
#include "platform/numbers.h"

namespace ruvenmark {

namespace {

// The dialog that stood aside.
void BringBack(MainWindow& main)
{
    main.sbStatusBar.SetPrompt("");
    if (const auto form = main.map.PinPointSource->form)
        main.services.dialogs.ComeBack(*form);
}

} // namespace

LatLonText TextOfPoint(GeoPoint point)
{
    const GeoPoint shown = ShownPoint(point);
    return {ShortText(shown.lat), ShortText(shown.lon)};
}

bool IsPinPointing(const MainWindow& main)
{
    return main.mpCtrl.MousePointer() == kPointerCross && main.map.PinPointSource;
}

void StartPinPoint(MainWindow& main, const PinPointTarget& target)
{
    if (IsPinPointing(main) && main.map.PinPointSource->form != target.form)
        BringBack(main); // Its click is somebody else's now.
    if (target.form)
        main.services.dialogs.StandAside(*target.form);
    ShowMapView(main.window);
    if (!IsPinPointing(main))
        main.map.mousePtr = main.mpCtrl.MousePointer();
    main.map.PinPointSource = target;
    main.mpCtrl.SetMousePointer(kPointerCross);
    main.sbStatusBar.SetPrompt("Click the place on the map (Esc to cancel)");
}

void mpCtrl_MouseMove(MainWindow& main, double x, double y)
{
    Attempt(main.abandoned, "mpCtrl_MouseMove", [&] {
        Map& map = main.mpCtrl.RequireMap();
        main.map.pointed = IsOnWorld(map.View(), {x, y}) ? std::optional(map.XYToLocation(x, y).Point()) : std::nullopt;
        ShowCoordinates(main);
    });
}

void ShowCoordinates(MainWindow& main)
{
    const auto& pointed = main.map.pointed;
    main.sbStatusBar.SetCoordinates(pointed ? CoordinateText(*pointed, main.map.coordinates) : std::string());
}

bool mpCtrl_Click(MainWindow& main, double x, double y)
{
    if (!IsPinPointing(main))
        return false;
    main.mpCtrl.SetMousePointer(main.map.mousePtr);
    const PinPointTarget target = *main.map.PinPointSource;
    if (target.isVisible(main))
        Attempt(main.abandoned, "mpCtrl_Click",
                [&] { target.take(main, ShownPoint(main.mpCtrl.RequireMap().XYToLocation(x, y).Point())); });
    BringBack(main);
    return true;
}

void EndPinPoint(MainWindow& main)
{
    if (!IsPinPointing(main))
        return;
    main.mpCtrl.SetMousePointer(main.map.mousePtr);
    BringBack(main);
}

} // namespace ruvenmark
