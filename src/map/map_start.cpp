#include "map/map_start.h"

#include "core/main_window.h"
#include "platform/numbers.h"

namespace ruvenmark {

void ChooseRegion(MainWindow& main)
{
    const double stored = main.stored.Number(Setting::Region);
    if (stored == kRegionNorthAmerica || stored == kRegionEurope) {
        main.map.Region = ToInt32(stored);
        return;
    }
    main.frmRegion = {};
    main.services.dialogs.Run(Form::frmRegion, main);
    main.map.Region = main.frmRegion.selectedRegion;
}

void OpenDefaultMap(MainWindow& main)
{
    const std::string_view path = SettingText(main.Settings, Setting::DefaultMap);
    if (!path.empty())
        main.mpCtrl.OpenMap(path);
}

void SetUpMap(MainWindow& main)
{
    constexpr std::int32_t kNavigationBar = 2, kDrawingBar = 3;
    main.mpCtrl.SetToolbarVisible(kNavigationBar, true);
    main.mpCtrl.SetToolbarVisible(kDrawingBar, true);
    main.mpCtrl.RequireMap();
}

} // namespace ruvenmark
