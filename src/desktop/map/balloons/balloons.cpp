#include "desktop/map/balloons/balloons.h"

#include "platform/map_model.h"

#include <algorithm>
#include <vector>

namespace ruvenmark {

namespace {

constexpr double kMargin = 8;           // From the window's edge.
constexpr double kBeyond = 20;          // That a marker may lie outside of it and still have its balloon.
constexpr std::size_t kMostListed = 10; // Names of a group in its balloon.

const MarkerItem* ItemOf(const MarkerLayout& layout, std::uint32_t slot)
{
    const auto& items = layout.Items();
    const auto it = std::find_if(items.rbegin(), items.rend(), [slot](const auto& item) { return item.slot == slot; });
    return it == items.rend() ? nullptr : &*it;
}

BalloonText ListOf(const Map& map, const std::vector<std::uint32_t>& members)
{
    BalloonText text{QStringLiteral("%1 markers here").arg(members.size()), {}};
    for (std::size_t i = 0; i < std::min(members.size(), kMostListed); ++i)
        text.lines.append(BalloonOf(*map.Pins().At(members[i])).title);
    if (members.size() > kMostListed)
        text.lines.append(QStringLiteral("and %1 more").arg(members.size() - kMostListed));
    text.lines.append(QStringLiteral("Click for the whole list"));
    return text;
}

} // namespace

void Balloons::Pin(SlotRef pin)
{
    m_pinned = pin;
    m_hovered.reset();
    m_pinnedRect = m_crossRect = QRectF();
}

void Balloons::DropTheGone(const Map* map)
{
    for (std::optional<SlotRef>* pin : {&m_pinned, &m_hovered})
        if (*pin && !(map && map->Pins().Find(**pin)))
            pin->reset();
}

BalloonText Balloons::TextOf(const BalloonGround& ground, PinData pin)
{
    ground.map.SettleNote(pin);
    return FullBalloonOf(pin, ground.now);
}

BalloonText Balloons::TextOf(const BalloonGround& ground, const MarkerItem& item, Kind kind)
{
    if (item.count == 1 || kind != Kind::Hovered)
        return TextOf(ground, *ground.map.Pins().At(item.slot));
    return ListOf(ground.map, ground.markers.Members(ground.map.PinPoints(), item));
}

// Nothing for a marker that lies outside the view.
std::optional<Balloon> Balloons::Make(const BalloonGround& ground, SlotRef ref, Kind kind)
{
    const PinData* pin = ground.map.Pins().Find(ref);
    if (!pin)
        return std::nullopt;
    const ViewFrame frame(ground.view);
    const MarkerItem* item = ItemOf(ground.markers, ref.slot);
    const QPointF at = item ? item->at : frame.ToPixel(ToMercator(pin->point));
    const QRectF area = frame.Rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (!area.adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond).contains(at))
        return std::nullopt;
    return Balloon(item ? TextOf(ground, *item, kind) : TextOf(ground, *pin), at, area, ground.look,
                   kind == Kind::Pinned);
}

void Balloons::Paint(QPainter& painter, const BalloonGround& ground)
{
    m_pinnedRect = m_crossRect = QRectF();
    if (const auto balloon = m_pinned ? Make(ground, *m_pinned, Kind::Pinned) : std::nullopt) {
        balloon->Paint(painter);
        m_pinnedRect = balloon->Rect();
        m_crossRect = balloon->CloseRect();
    }
    if (m_hovered && m_hovered != m_pinned)
        if (const auto balloon = Make(ground, *m_hovered, Kind::Hovered))
            balloon->Paint(painter);
}

void Balloons::PaintStill(QPainter& painter, const BalloonGround& ground) const
{
    if (const auto balloon = m_pinned ? Make(ground, *m_pinned, Kind::Still) : std::nullopt)
        balloon->Paint(painter);
}

} // namespace ruvenmark
