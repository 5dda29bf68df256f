// What a click or a resting pointer on the map picks out.
#include "desktop/map/hit_test.h"
#include "desktop/map/map_widget.h"

#include <algorithm>

namespace ruvenmark {

void MapWidget::SetSelection(const MapSelection& selection)
{
    m_selection = selection;
    update();
}

void MapWidget::Select(const MapSelection& selection)
{
    if (m_selection == selection)
        return;
    SetSelection(selection);
    emit SelectionChanged();
}

void MapWidget::PinBalloon(const Pushpin& pin)
{
    m_pinned = pin.Ref();
    m_hovered.reset();
    update();
}

void MapWidget::CloseBalloon()
{
    m_pinned.reset();
    update();
}

const MarkerItem* MapWidget::MarkerAt(QPointF at)
{
    const Map* map = m_control.ActiveMap();
    if (!map)
        return nullptr;
    m_scene.Arrange(*map, map->View(), m_selection);
    const MarkerItem* item = MarkerUnder(m_scene.Markers(), at);
    return item && map->Pins().At(item->slot) ? item : nullptr;
}

void MapWidget::Click(QPointF at)
{
    if (m_pinned && m_scene.PinnedRect().contains(at)) {
        if (m_scene.PinnedCloseRect().contains(at))
            CloseBalloon();
        return;
    }
    if (const MarkerItem* item = MarkerAt(at)) {
        ClickMarker(*item);
        return;
    }
    CloseBalloon();
    Map* map = m_control.ActiveMap();
    const auto shape = map ? ShapeUnder(m_scene.Shapes(), map->Shapes(), at) : std::nullopt;
    if (shape)
        Select(map->ShapeAt(*shape));
    else
        Select({});
}

// The first click opens the marker's balloon; further clicks go through the markers of a group, then close it.
void MapWidget::ClickMarker(const MarkerItem& item)
{
    Map& map = m_control.RequireMap();
    const std::vector<std::uint32_t> members = m_scene.Markers().Members(map.PinPoints(), item);
    std::uint32_t next = item.slot;
    if (m_pinned == map.PinAt(item.slot).Ref()) {
        const auto at = std::find(members.begin(), members.end(), item.slot);
        if (at == members.end() || at + 1 == members.end()) {
            CloseBalloon();
            return;
        }
        next = *(at + 1);
    } else if (item.count > 1) {
        next = members.empty() ? item.slot : members.front();
    }
    const Pushpin pin = map.PinAt(next);
    PinBalloon(pin);
    Select(pin);
}

void MapWidget::Hover(QPointF at)
{
    Map* map = m_control.ActiveMap();
    const bool bOnBalloon = m_pinned && m_scene.PinnedRect().contains(at);
    const MarkerItem* item = bOnBalloon ? nullptr : MarkerAt(at);
    const auto hovered = item ? std::optional(map->PinAt(item->slot).Ref()) : std::nullopt;
    if (hovered == m_hovered)
        return;
    m_hovered = hovered;
    update();
}

} // namespace ruvenmark
