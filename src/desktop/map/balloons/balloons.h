#pragma once

#include "desktop/map/balloons/balloon.h"
#include "desktop/map/markers/marker_layout.h"
#include "platform/slot_pool.h"

#include <cstdint>
#include <optional>

class QPainter;

namespace ruvenmark {

class Map;
struct MapView;

// What balloons are painted over.
struct BalloonGround {
    const Map& map;
    const MapView& view;
    const MarkerLayout& markers; // As they lie in this view.
    const MapLook& look;
    std::int64_t now = 0; // Seconds since 1970.
};

// Which balloons are open: one that a click pinned, and one that shows while the pointer rests on a marker.
class Balloons {
public:
    void Pin(SlotRef pin);
    void Close() { m_pinned.reset(); }
    void Hover(std::optional<SlotRef> pin) { m_hovered = pin; }
    // Closes those of markers that are gone; a null map: of all.
    void DropTheGone(const Map* map);

    std::optional<SlotRef> Pinned() const { return m_pinned; }
    std::optional<SlotRef> Hovered() const { return m_hovered; }
    // Of the pinned balloon and its cross, as last painted; empty while there is none.
    QRectF PinnedRect() const { return m_pinned ? m_pinnedRect : QRectF(); }
    QRectF CrossRect() const { return m_pinned ? m_crossRect : QRectF(); }

    void Paint(QPainter& painter, const BalloonGround& ground);
    // On a picture, where nobody can click or rest.
    void PaintStill(QPainter& painter, const BalloonGround& ground) const;

private:
    enum class Kind : std::uint8_t { Hovered, Pinned, Still };

    static std::optional<Balloon> Make(const BalloonGround& ground, SlotRef pin, Kind kind);
    static BalloonText TextOf(const BalloonGround& ground, PinData pin);
    static BalloonText TextOf(const BalloonGround& ground, const MarkerItem& item, Kind kind);

    std::optional<SlotRef> m_pinned, m_hovered;
    QRectF m_pinnedRect, m_crossRect;
};

} // namespace ruvenmark
