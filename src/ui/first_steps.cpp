#include "ui/first_steps.h"

#include "core/main_window.h"
#include "core/views.h"
#include "platform/map_extent.h"

#include <algorithm>
#include <vector>

namespace ruvenmark {

bool WantsFirstSteps(const MainWindow& main)
{
    const Map* map = main.mpCtrl.ActiveMap();
    const bool bHeard = std::any_of(main.channels.begin(), main.channels.end(),
                                    [](const ChannelState& state) { return !state.Stations.IsEmpty(); });
    return map && map->RecordCount() == 0 && map->Shapes().Count() == 0 && !bHeard && !main.links.FileLoading &&
           !main.links.IsAnyOpen() && main.mpCtrl.MousePointer() != kPointerCross;
}

bool HasPlacedStations(const MainWindow& main)
{
    return std::any_of(main.channels.begin(), main.channels.end(), [](const ChannelState& state) {
        return std::any_of(state.Stations.begin(), state.Stations.end(),
                           [](const auto& entry) { return PositionOf(entry.value).has_value(); });
    });
}

void mnuZoomToStations_Click(MainWindow& main)
{
    std::vector<GeoPoint> places;
    for (const ChannelState& state : main.channels)
        for (const auto& [call, record] : state.Stations)
            if (const auto point = PositionOf(record))
                places.push_back(*point);
    if (places.empty())
        return;
    Attempt(main.abandoned, "mnuZoomToStations", [&] {
        Map& map = main.mpCtrl.RequireMap();
        const MapView view = ViewOfAll(places, map.View());
        map.SetView(view.centre, view.zoom);
    });
    ShowMapView(main.window);
}

} // namespace ruvenmark
