#include "desktop/stations/dock_place.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

constexpr int kMost = 16384; // Pixels.

struct Side {
    Qt::DockWidgetArea area;
    const char* word;
};
constexpr std::array kSides = {Side{Qt::BottomDockWidgetArea, "below"}, Side{Qt::TopDockWidgetArea, "above"},
                               Side{Qt::LeftDockWidgetArea, "left"}, Side{Qt::RightDockWidgetArea, "right"}};
constexpr QLatin1String kFloating("floating");

int Number(const QStringList& words, qsizetype at)
{
    return std::clamp(words.value(at).toInt(), -kMost, kMost);
}

} // namespace

std::string TextOf(const DockPlace& place)
{
    const QRect& rect = place.floating;
    if (rect.isValid())
        return QStringLiteral("floating %1 %2 %3 %4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height())
            .toStdString();
    const auto* side =
        std::find_if(kSides.begin(), kSides.end(), [&](const Side& one) { return one.area == place.area; });
    return side == kSides.end() ? std::string() : side->word + (' ' + std::to_string(place.size));
}

DockPlace DockPlaceOf(std::string_view text)
{
    const QStringList words =
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    DockPlace place;
    if (words.value(0) == kFloating)
        place.floating = {Number(words, 1), Number(words, 2), Number(words, 3), Number(words, 4)};
    for (const Side& side : kSides)
        if (words.value(0) == QLatin1String(side.word)) {
            place.area = side.area;
            place.size = std::max(Number(words, 1), 0);
        }
    return place;
}

} // namespace ruvenmark
