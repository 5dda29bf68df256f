#include "desktop/map/widget/map_picker.h"

#include "desktop/map/balloons/balloons.h"
#include "desktop/map/scene/map_scene.h"
#include "desktop/map/widget/under_pointer.h"
#include "platform/map_control.h"

#include <algorithm>
#include <utility>

namespace ruvenmark {

const MarkerItem* MapPicker::UnderBadge(QPointF at) const
{
    const auto& badges = m_scene.Labels().Badges();
    const auto badge =
        std::find_if(badges.begin(), badges.end(), [&](const auto& one) { return one.rect.contains(at); });
    if (badge == badges.end())
        return nullptr;
    const auto& items = m_scene.Markers().Items();
    const auto item =
        std::find_if(items.begin(), items.end(), [&](const MarkerItem& one) { return one.slot == badge->slot; });
    return item == items.end() ? nullptr : &*item;
}

const MarkerItem* MapPicker::MarkerAt(QPointF at)
{
    const Map* map = m_control.ActiveMap();
    if (!map)
        return nullptr;
    m_scene.Arrange(*map, map->View(), m_selection);
    const MarkerItem* badge = UnderBadge(at);
    const MarkerItem* item = badge ? badge : MarkerUnder(m_scene.Markers(), at);
    return item && map->Pins().At(item->slot) ? item : nullptr;
}

std::vector<SlotRef> MapPicker::MarkersAt(QPointF at)
{
    std::vector<SlotRef> refs;
    if (m_balloons.PinnedRect().contains(at))
        return refs;
    if (const MarkerItem* item = MarkerAt(at)) {
        Map& map = m_control.RequireMap();
        for (const std::uint32_t slot : m_scene.Markers().Members(map.PinPoints(), *item))
            refs.push_back(map.PinAt(slot).Ref());
    }
    return refs;
}

Picked MapPicker::Click(QPointF at)
{
    m_bOnBalloon = m_balloons.PinnedRect().contains(at);
    if (m_bOnBalloon) {
        if (m_balloons.CrossRect().contains(at))
            m_balloons.Close();
        return {};
    }
    std::vector<SlotRef> markers = MarkersAt(at);
    if (markers.size() == 1)
        return {ClickMarker(markers.front()), {}};
    m_balloons.Close();
    if (!markers.empty())
        return {std::nullopt, std::move(markers)};
    Map* map = m_control.ActiveMap();
    const auto shape = map ? ShapeUnder(m_scene.Shapes(), map->Shapes(), at) : std::nullopt;
    return {shape ? MapSelection(map->ShapeAt(*shape)) : MapSelection(), {}};
}

bool MapPicker::IsGround(QPointF at)
{
    return !m_bOnBalloon && !m_balloons.PinnedRect().contains(at) && MarkersAt(at).empty();
}

// The first click opens the marker's balloon, the next closes it.
std::optional<MapSelection> MapPicker::ClickMarker(SlotRef ref)
{
    if (m_balloons.Pinned() == ref) {
        m_balloons.Close();
        return std::nullopt;
    }
    m_balloons.Pin(ref);
    return m_control.RequireMap().PinAt(ref.slot);
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
