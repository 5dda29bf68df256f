#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

namespace ruvenmark {

// What an icon draws at `size` on a device of this pixel ratio.
QImage Drawn(const QIcon& icon, int size, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal);

// Share of the pixels that are more than half opaque, 0 to 1.
double Coverage(const QImage& image);

// The mean colour of the opaque pixels.
QColor MeanColour(const QImage& image);

// Contrast of two colours as WCAG 2 defines it, 1 to 21.
double Contrast(const QColor& a, const QColor& b);

} // namespace ruvenmark
