#pragma once

#include "desktop/map/view/view_moves.h"

#include <QPointF>

namespace ruvenmark {

class MapControl;

// Moves the view of the active map, if there is one, within the world.
class MapMover {
public:
    explicit MapMover(MapControl& control) : m_control(control) {}

    void MoveTo(const ViewTarget& target);
    void ZoomAbout(QPointF point, double levels);
    void ZoomBy(double levels); // About the middle.
    void PanBy(QPointF pixels); // That the view moves over the ground.
    void ShowRegion();          // The whole region of the map.
    void Resize(QSize window);

    // Whether the change of the view that is told at the moment comes from here.
    bool IsMoving() const { return m_bMoving; }

private:
    template <typename Move>
    void Run(Move move);

    MapControl& m_control;
    bool m_bMoving = false;
};

} // namespace ruvenmark
