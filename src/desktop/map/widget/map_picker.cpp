#include "desktop/map/widget/map_picker.h"

#include "desktop/map/balloons/balloons.h"
#include "desktop/map/scene/map_scene.h"
#include "desktop/map/widget/under_pointer.h"
#include "platform/map_control.h"

#include <algorithm>
#include <vector>

namespace ruvenmark {

const MarkerItem* MapPicker::MarkerAt(QPointF at)
{
    const Map* map = m_control.ActiveMap();
    if (!map)
        return nullptr;
    m_scene.Arrange(*map, map->View(), m_selection);
    const MarkerItem* item = MarkerUnder(m_scene.Markers(), at);
    return item && map->Pins().At(item->slot) ? item : nullptr;
}

std::optional<MapSelection> MapPicker::Click(QPointF at)
{
    if (m_balloons.PinnedRect().contains(at)) {
        if (m_balloons.CrossRect().contains(at))
            m_balloons.Close();
        return std::nullopt;
    }
    if (const MarkerItem* item = MarkerAt(at))
        return ClickMarker(*item);
    m_balloons.Close();
    Map* map = m_control.ActiveMap();
    const auto shape = map ? ShapeUnder(m_scene.Shapes(), map->Shapes(), at) : std::nullopt;
    return shape ? MapSelection(map->ShapeAt(*shape)) : MapSelection();
}

// The first click opens the marker's balloon; further clicks go through the markers of a group, then close it.
std::optional<MapSelection> MapPicker::ClickMarker(const MarkerItem& item)
{
    Map& map = m_control.RequireMap();
    const std::vector<std::uint32_t> members = m_scene.Markers().Members(map.PinPoints(), item);
    std::uint32_t next = item.slot;
    if (m_balloons.Pinned() == map.PinAt(item.slot).Ref()) {
        const auto at = std::find(members.begin(), members.end(), item.slot);
        if (at == members.end() || at + 1 == members.end()) {
            m_balloons.Close();
            return std::nullopt;
        }
        next = *(at + 1);
    } else if (item.count > 1) {
        next = members.empty() ? item.slot : members.front();
    }
    const Pushpin pin = map.PinAt(next);
    m_balloons.Pin(pin.Ref());
    return pin;
}

bool MapPicker::Rest(QPointF at)
{
    const MarkerItem* item = m_balloons.PinnedRect().contains(at) ? nullptr : MarkerAt(at);
    const auto hovered = item ? std::optional(m_control.RequireMap().PinAt(item->slot).Ref()) : std::nullopt;
    const bool bOther = hovered != m_balloons.Hovered();
    m_balloons.Hover(hovered);
    return bOther;
}

} // namespace ruvenmark
