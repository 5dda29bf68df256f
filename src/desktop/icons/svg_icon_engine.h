#pragma once

#include "desktop/icons/svg_picture.h"

#include <QIconEngine>

#include <map>
#include <optional>
#include <utility>

namespace ruvenmark {

// What an icon takes from the palette: an invalid colour leaves the picture as it is.
struct IconColors {
    QColor normal;
    QColor disabled;
    QColor selected;
};

// Draws one SVG at the size and pixel ratio asked for, and keeps each drawing: a tree asks for the same few again and
// again.
class SvgIconEngine : public QIconEngine {
public:
    SvgIconEngine(QString path, const IconColors& colors);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override;
    QString key() const override;
    bool isNull() override;

private:
    QPixmap Drawn(int pixels, QIcon::Mode mode);

    QString m_path;
    IconColors m_colors;
    std::optional<SvgPicture> m_picture;
    std::map<std::pair<int, QIcon::Mode>, QPixmap> m_drawn;
};

} // namespace ruvenmark
