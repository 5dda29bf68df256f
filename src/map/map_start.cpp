#include "map/map_start.h"

#include "core/main_window.h"
#include "platform/numbers.h"

namespace ruvenmark {

void StartMap(MainWindow& main)
{
    constexpr std::string_view kNoRegion = "100";
    const auto stored = ReadNumber(main.services.store.Get("Region", kNoRegion)).value_or(100);
    if (stored == kRegionNorthAmerica || stored == kRegionEurope)
        main.map.Region = ToInt32(stored);
    else
        main.map.Region = main.services.dialogs.RunRegion();
    main.map.bRegionKnown = true;
    main.mpCtrl.NewMap(main.map.Region);
}

void OpenDefaultMap(MainWindow& main)
{
    const std::string_view path = SettingText(main.Settings, "DefaultMap");
    if (!path.empty())
        main.mpCtrl.OpenMap(path);
}

void SetUpMap(MainWindow& main)
{
    constexpr std::int32_t kNavigationBar = 2, kDrawingBar = 3;
    main.mpCtrl.SetToolbarVisible(kNavigationBar, true);
    main.mpCtrl.SetToolbarVisible(kDrawingBar, true);
    Map& map = main.mpCtrl.RequireMap();
    MapSession& session = main.map;
    session.NorthPole = map.GetLocation(90, 0);
    session.WestPoint = map.GetLocation(0, -90);
    session.HalfCircumference = map.Distance(*session.NorthPole, map.GetLocation(-90, 0));
    session.QuarterCircumference = session.HalfCircumference / 2;
}

} // namespace ruvenmark
