#include "desktop/icons/pixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruvenmark {
namespace {

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

// Calls `visit` with each pixel that is at least `alpha` opaque.
template <typename Visit>
void ForEachOpaque(const QImage& image, int alpha, Visit visit)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (const QColor colour = image.pixelColor(x, y); colour.alpha() >= alpha)
                visit(colour);
    }
}

} // namespace

QImage Drawn(const QIcon& icon, int size, qreal ratio, QIcon::Mode mode)
{
    const int pixels = qRound(size * ratio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, QRect(0, 0, size, size), Qt::AlignCenter, mode);
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

double Coverage(const QImage& image)
{
    int count = 0;
    ForEachOpaque(image, 128, [&count](const QColor&) { ++count; });
    return count / static_cast<double>(image.width() * image.height());
}

QColor MeanColour(const QImage& image)
{
    double red = 0;
    double green = 0;
    double blue = 0;
    int count = 0;
    ForEachOpaque(image, 200, [&](const QColor& colour) {
        red += colour.redF();
        green += colour.greenF();
        blue += colour.blueF();
        ++count;
    });
    const double share = 1.0 / std::max(count, 1);
    return QColor::fromRgbF(static_cast<float>(red * share), static_cast<float>(green * share),
                            static_cast<float>(blue * share));
}

double Contrast(const QColor& a, const QColor& b)
{
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

} // namespace ruvenmark
