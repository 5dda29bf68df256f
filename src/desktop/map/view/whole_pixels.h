#pragma once

#include <QPainter>

#include <cmath>

namespace ruvenmark {

// Puts the painter's origin on a whole device pixel. That of a window's part often lies on half of one where the screen
// is enlarged by one and a half, and pictures side by side with their edges there leave a row between them unpainted.
inline void ToWholePixels(QPainter& painter)
{
    const QTransform to = painter.deviceTransform();
    painter.translate((std::round(to.dx()) - to.dx()) / to.m11(), (std::round(to.dy()) - to.dy()) / to.m22());
}

} // namespace ruvenmark
