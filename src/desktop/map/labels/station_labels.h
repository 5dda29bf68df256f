#pragma once

#include "desktop/map/labels/label_grid.h"
#include "desktop/map/markers/marker_layout.h"
#include "desktop/map/scene/map_look.h"

#include <QPixmap>
#include <QRectF>
#include <QRegion>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

class QPainter;

namespace ruvenmark {

// The names beside markers and the counts on those that stand for several. The selected marker's name is always
// written; of the others the newest choose their place first, and who finds none is left out. Names of trails yield to
// all others, those of places too; a faded marker has none. They are placed on squares that are fixed to the ground, so
// that names neither flicker nor jump while the map is moved. Texts are measured and drawn once and kept.
class StationLabels {
public:
    static constexpr double kMostWidth = 170; // Pixels of a name; a longer one ends in an ellipsis.

    struct Placed {
        std::uint32_t slot = 0;
        QRectF rect;
    };

    // Before names are placed: a change of letters or colours forgets what was drawn.
    void SetLook(const MapLook& look, qreal ratio);
    // Nothing is written where the window shows something else.
    void Place(const std::vector<MarkerItem>& items, const SlotPool<PinData>& pins, const ViewFrame& frame,
               std::optional<std::uint32_t> selected, std::span<const QRectF> taken);
    // The names of trails, each once, where `grid`, which holds all others by now, is free.
    void PlaceTrails(const std::vector<MarkerItem>& items, const SlotPool<PinData>& pins, const ViewFrame& frame,
                     LabelGrid& grid);
    // Keeps the places of markers, names and counts free of other names.
    void BlockIn(LabelGrid& grid, const std::vector<MarkerItem>& items) const;
    // Letters as curves instead of kept pictures, for printers and vector files; only: what a region touches.
    void Paint(QPainter& painter, bool bVector, const QRegion* only = nullptr);
    // Calls visit(place, text shown) with all that Paint paints.
    template <typename Visit>
    void Each(Visit visit) const
    {
        for (std::size_t i = 0; i < m_namesPlaced.size(); ++i)
            visit(m_namesPlaced[i], m_nameTodo[i].text->shown);
        for (std::size_t i = 0; i < m_badgesPlaced.size(); ++i)
            visit(m_badgesPlaced[i], m_badgeTodo[i].text->shown);
    }

    const std::vector<Placed>& Names() const { return m_namesPlaced; }
    const std::vector<Placed>& Badges() const { return m_badgesPlaced; }

    // "7", "950", "1.2k", "34k", "2M".
    static QString CountText(std::uint32_t count);

private:
    struct Text {
        QString shown;
        QSizeF size;
        QPixmap picture; // Made when it is first painted.
    };
    struct Todo {
        Text* text;
        QRectF rect;
    };

    Text& Name(const std::string& name);
    Text& Badge(std::uint32_t count);
    void SetGround(const ViewFrame& frame);
    void PlaceBadge(const MarkerItem& item);
    void PlaceName(const MarkerItem& item, const SlotPool<PinData>& pins);
    void PlaceSelected(const MarkerItem& item, const SlotPool<PinData>& pins);
    void Write(std::uint32_t slot, Text& text, const QRectF& rect);
    void Take(std::uint32_t slot, const std::array<QPointF, 4>& centres, Text& text, std::vector<Todo>& todo,
              std::vector<Placed>& placed);
    template <typename PaintText, typename Picture>
    void PaintAll(QPainter& painter, std::vector<Todo>& todo, bool bVector, const QRegion* only, PaintText paintText,
                  Picture picture) const;

    std::optional<MapLook> m_look;
    qreal m_ratio = 1;
    std::unordered_map<std::string, Text> m_names;
    std::unordered_map<std::uint32_t, Text> m_badges;
    LabelGrid m_grid;
    QRectF m_view;
    QPointF m_onGround; // From the window's corner to that of the grid.
    std::vector<Todo> m_nameTodo, m_badgeTodo;
    std::vector<Placed> m_namesPlaced, m_badgesPlaced;
};

} // namespace ruvenmark
