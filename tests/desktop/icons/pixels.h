#pragma once

#include <QIcon>
#include <QImage>
#include <QPainter>

namespace ruvenmark {

// What an icon draws.
inline QImage Drawn(const QIcon& icon, int size, QIcon::Mode mode = QIcon::Normal)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

// Calls `visit` with the colour of each pixel that is at least `alpha` opaque, and gives their share, 0 to 1.
template <typename Visit>
double ForEachOpaque(const QImage& image, int alpha, Visit visit)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (const QColor colour = image.pixelColor(x, y); colour.alpha() >= alpha) {
                visit(colour);
                ++count;
            }
        }
    }
    return count / static_cast<double>(image.width() * image.height());
}

inline double Coverage(const QImage& image)
{
    return ForEachOpaque(image, 128, [](const QColor&) {});
}

} // namespace ruvenmark
