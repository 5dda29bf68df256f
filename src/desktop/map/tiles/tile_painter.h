#pragma once

#include "desktop/map/view/view_frame.h"

#include <QtGlobal>

class QPainter;

namespace ruvenmark {

class MapTiles;

// Paints what there is of the tiles in view (a coarser one where the right one is missing) and asks for the rest.
// Pale: washed out. Returns whether tiles cover the whole view.
bool PaintTiles(QPainter& painter, const ViewFrame& frame, MapTiles& tiles, qreal ratio, bool bPale);

} // namespace ruvenmark
