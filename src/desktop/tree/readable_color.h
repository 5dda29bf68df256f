#pragma once

#include <QColor>

namespace ruvenmark {

// The colour, made lighter or darker until a text in it can be read on the background (WCAG 2.1: contrast 4.5 to 1).
QColor ReadableColor(const QColor& color, const QColor& background);

} // namespace ruvenmark
