#pragma once

#include "desktop/map/scene/map_look.h"

#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace ruvenmark {

inline constexpr double kNameHalo = 1.5; // Pixels around the letters of a station's name.

// Names and counts as letters and curves.
void PaintName(QPainter& painter, const MapLook& look, const QString& text, const QRectF& rect);
void PaintBadge(QPainter& painter, const MapLook& look, const QString& text, const QRectF& rect);

// The same as pictures; ratio: device pixels for one of the view.
QPixmap NamePicture(const MapLook& look, const QString& text, QSizeF size, qreal ratio);
QPixmap BadgePicture(const MapLook& look, const QString& text, QSizeF size, qreal ratio);

} // namespace ruvenmark
