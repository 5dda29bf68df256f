#pragma once

#include "desktop/map/base_map/square_painter.h"
#include "desktop/map/labels/label_grid.h"
#include "desktop/map/labels/place_labels.h"
#include "desktop/map/tiles/map_tiles.h"
#include "desktop/map/view/view_frame.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>

class QPainter;

namespace ruvenmark {

class BaseMap;

// What lies under everything: the built-in map, and over it pictures from elsewhere where the style takes them.
class MapGround : public QObject {
    Q_OBJECT

public:
    // Without a base map the ground is water.
    explicit MapGround(const BaseMap* base, QObject* parent = nullptr);
    ~MapGround() override;

    struct How {
        std::int32_t style = 0; // As the map model numbers them.
        std::int32_t font = 2;
        bool bDark = false;
        qreal ratio = 1;
        bool bVector = false, bWait = false;
        const QRegion* only = nullptr; // Where it is painted; null: everywhere.
    };
    void Paint(QPainter& painter, const ViewFrame& frame, const How& how);
    // The names of places, where `grid` is free; none where the pictures from elsewhere, which have names of their own,
    // cover everything.
    void PlaceNames(const ViewFrame& frame, LabelGrid& grid, const How& how);
    const std::vector<PlaceLabels::Name>* Names() const { return m_bNamed ? &m_names->Names() : nullptr; }
    // Those names, and above them the pictures from elsewhere.
    void PaintAbove(QPainter& painter, const ViewFrame& frame, const How& how);

    // Whether pictures from elsewhere are the ground of this style; they are never dark.
    bool ShowsTiles(std::int32_t style) const;
    QString Credits(std::int32_t style) const;
    // Whether nothing more is to come for the last frame.
    bool IsReady() const { return !m_tiles.IsBusy() && (!m_painter || m_painter->IsReady()); }
    MapTiles& Tiles() { return m_tiles; }

signals:
    void Changed(); // More can be painted.

private:
    const BaseMap* m_base;
    std::unique_ptr<SquarePainter> m_painter; // Both null without a base map.
    std::unique_ptr<PlaceLabels> m_names;
    MapTiles m_tiles;
    bool m_bCovered = false; // The last frame showed nothing but tiles.
    bool m_bNamed = false;
};

} // namespace ruvenmark
