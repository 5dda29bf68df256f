#pragma once

#include "desktop/map/view_frame.h"

#include <QtGlobal>

class QPainter;

namespace ruvenmark {

class OnlineTiles;

// Paints what there is of the tiles in view (a coarser one where the right one is missing) and asks for the rest.
// Returns whether tiles cover the whole view.
bool PaintOnlineTiles(QPainter& painter, const ViewFrame& frame, OnlineTiles& tiles, qreal ratio);

} // namespace ruvenmark
