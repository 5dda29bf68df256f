#include "desktop/map/view/map_mover.h"

#include "platform/map_control.h"

namespace ruvenmark {

template <typename Move>
void MapMover::Run(Move move)
{
    Map* map = m_control.ActiveMap();
    if (!map)
        return;
    m_bMoving = true;
    move(*map);
    m_bMoving = false;
}

void MapMover::MoveTo(const ViewTarget& target)
{
    Run([&](Map& map) {
        const ViewTarget kept = WithinWorld(target, {map.Width(), map.Height()});
        map.SetView(FromMercator(kept.centre), kept.zoom);
    });
}

void MapMover::ZoomAbout(QPointF point, double levels)
{
    if (const Map* map = m_control.ActiveMap())
        MoveTo(ZoomedAbout(map->View(), point, levels));
}

void MapMover::ZoomBy(double levels)
{
    if (const Map* map = m_control.ActiveMap())
        ZoomAbout(QPointF(map->Width(), map->Height()) / 2, levels);
}

void MapMover::PanBy(QPointF pixels)
{
    if (const Map* map = m_control.ActiveMap())
        MoveTo(Panned(map->View(), pixels));
}

void MapMover::ShowRegion()
{
    if (const Map* map = m_control.ActiveMap()) {
        const MapView view = RegionView(m_control.MapRegion(), map->Width(), map->Height());
        MoveTo({ToMercator(view.centre), view.zoom});
    }
}

void MapMover::Resize(QSize window)
{
    Run([&](Map& map) { map.SetSize(window.width(), window.height()); });
    if (const Map* map = m_control.ActiveMap())
        MoveTo({ToMercator(map->View().centre), map->View().zoom});
}

} // namespace ruvenmark
