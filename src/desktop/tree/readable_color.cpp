#include "desktop/tree/readable_color.h"

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kContrast = 4.5;
constexpr float kStep = 0.05F;

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double Contrast(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

} // namespace

QColor ReadableColor(const QColor& color, const QColor& background)
{
    const double behind = Luminance(background);
    const bool bLighter = Contrast(1.0, behind) > Contrast(0.0, behind);
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    color.getHslF(&hue, &saturation, &lightness);
    QColor readable = color;
    while (Contrast(Luminance(readable), behind) < kContrast && lightness > 0 && lightness < 1) {
        lightness = std::clamp(lightness + (bLighter ? kStep : -kStep), 0.0F, 1.0F);
        readable = QColor::fromHslF(std::max(hue, 0.0F), saturation, lightness);
    }
    return readable;
}

} // namespace ruvenmark
