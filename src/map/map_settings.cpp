#include "map/map_settings.h"

#include "core/main_window.h"
#include "map/pointer_tools.h"

#include <algorithm>

namespace ruvenmark {

void LoadMapSettings(MainWindow& main)
{
    const std::int16_t form = main.stored.Int16(Setting::CoordinateForm);
    const bool bKnown = form >= 0 && form < kCoordinateForms;
    main.map.coordinates = bKnown ? static_cast<CoordinateForm>(form) : CoordinateForm::Decimal;
    main.map.iFadeAfter = std::max<std::int16_t>(main.stored.Int16(Setting::FadeAfter), 0);
    main.map.LookChanged.Raise();
}

void SaveMapSettings(MainWindow& main)
{
    main.stored.SetWhole(Setting::CoordinateForm, static_cast<std::int16_t>(main.map.coordinates));
    main.stored.SetWhole(Setting::FadeAfter, main.map.iFadeAfter);
}

void ChangeCoordinateForm(MainWindow& main)
{
    main.map.coordinates = Next(main.map.coordinates);
    ShowCoordinates(main);
    main.map.LookChanged.Raise();
}

void SetFadeAfter(MainWindow& main, std::int16_t minutes)
{
    main.map.iFadeAfter = minutes;
    main.map.LookChanged.Raise();
}

} // namespace ruvenmark
