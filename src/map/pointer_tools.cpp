#include "map/pointer_tools.h"

#include "core/main_window.h"
#include "core/views.h"
#include "platform/numbers.h"

namespace ruvenmark {

namespace {

// The dialog that stood aside.
void BringBack(MainWindow& main)
{
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
    main.mpCtrl.SetMousePointer(kPointerCross);
    main.map.PinPointSource = target;
}

void mpCtrl_MouseMove(MainWindow& main, double x, double y)
{
    Attempt(main.abandoned, "mpCtrl_MouseMove", [&] {
        const LatLonText text = TextOfPoint(main.mpCtrl.RequireMap().XYToLocation(x, y).Point());
        main.sbStatusBar.SetCoordinates(text.lat + ", " + text.lon);
    });
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
