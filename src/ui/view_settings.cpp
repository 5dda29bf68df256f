#include "ui/view_settings.h"

#include "core/main_window.h"
#include "platform/map_region.h"
#include "platform/numbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace ruvenmark {

namespace {

struct ShownPart {
    Setting setting;
    bool WindowState::*flag;
};
constexpr std::array kShown = {ShownPart{Setting::ShowToolBar, &WindowState::bToolBar},
                               ShownPart{Setting::ShowStatusBar, &WindowState::bStatusBar},
                               ShownPart{Setting::ShowStationList, &WindowState::bStationList}};
// Of the map, from its first tool bar on.
constexpr std::array kMapBars = {Setting::StandardToolbar, Setting::NavigationToolbar, Setting::DrawingToolbar,
                                 Setting::LocationScaleToolbar};

void LoadMapLook(MainWindow& main, Map& map)
{
    const std::int16_t style = main.stored.Int16(Setting::MapStyle), font = main.stored.Int16(Setting::MapFont);
    if (style >= 0 && style <= kLastMapStyle)
        map.SetMapStyle(style);
    if (font >= 0 && font <= kLastMapFont)
        map.SetMapFont(font);
    const auto lat = ReadNumber(main.stored.Text(Setting::MapLat)), lon = ReadNumber(main.stored.Text(Setting::MapLon));
    const auto zoom = ReadNumber(main.stored.Text(Setting::MapZoom));
    const MapView first = map.View();
    if (lat || lon || zoom)
        map.SetView({lat.value_or(first.centre.lat), lon.value_or(first.centre.lon)}, zoom.value_or(first.zoom));
    map.SetSaved(true); // Nobody has worked on it.
}

// Empty texts stand for where a new map of the region looks.
void SaveMapPlace(MainWindow& main, const Map& map)
{
    constexpr int kZoomDecimals = 3;
    const MapView& view = map.View();
    const MapView first = RegionView(main.mpCtrl.MapRegion(), view.width, view.height);
    const GeoPoint centre = ShownPoint(view.centre), firstCentre = ShownPoint(first.centre);
    const auto set = [&](Setting setting, double now, double atFirst) {
        main.stored.Set(setting, now == atFirst ? std::string() : ShortText(now));
    };
    set(Setting::MapLat, centre.lat, firstCentre.lat);
    set(Setting::MapLon, centre.lon, firstCentre.lon);
    set(Setting::MapZoom, RoundDecimals(view.zoom, kZoomDecimals), RoundDecimals(first.zoom, kZoomDecimals));
}

} // namespace

void LoadViewSettings(MainWindow& main)
{
    for (const ShownPart& part : kShown)
        main.window.*part.flag = main.stored.Flag(part.setting);
    main.window.stationListPlace = main.stored.Text(Setting::StationListPlace);
    for (std::size_t i = 0; i < kMapBars.size(); ++i)
        main.mpCtrl.SetToolbarVisible(static_cast<std::int32_t>(i) + 1, main.stored.Flag(kMapBars[i]));
    Map* map = main.mpCtrl.ActiveMap();
    if (map && SettingText(main.Settings, Setting::DefaultMap).empty())
        LoadMapLook(main, *map);
    main.window.Changed.Raise();
}

void SaveViewSettings(MainWindow& main)
{
    for (const ShownPart& part : kShown)
        main.stored.SetFlag(part.setting, main.window.*part.flag);
    main.stored.Set(Setting::StationListPlace, main.window.stationListPlace);
    const Map* map = main.mpCtrl.ActiveMap();
    if (map) {
        main.stored.SetWhole(Setting::MapStyle, map->MapStyle());
        main.stored.SetWhole(Setting::MapFont, map->MapFont());
    }
    for (std::size_t i = 0; i < kMapBars.size(); ++i)
        main.stored.SetFlag(kMapBars[i], main.mpCtrl.ToolbarVisible(static_cast<std::int32_t>(i) + 1));
    if (map)
        SaveMapPlace(main, *map);
}

void mnuFileUseAtStart_Click(MainWindow& main)
{
    const std::string& file = main.map.sMainMapFile;
    const bool bUsed = SettingText(main.Settings, Setting::DefaultMap) == file;
    SetSetting(main.Settings, Setting::DefaultMap, bUsed ? std::string() : file);
}

void mnuViewStations_Click(MainWindow& main)
{
    main.window.bStationList = !main.window.bStationList;
    main.window.Changed.Raise();
}

} // namespace ruvenmark
