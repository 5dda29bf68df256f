#pragma once

#include "desktop/map/base_map/base_map_painter.h"
#include "desktop/map/view/view_frame.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <cstddef>
#include <string>

namespace ruvenmark {

inline const std::string kWorldMapPath = RUVENMARK_SOURCE_DIR "/data/basemap/world.rvm";
inline constexpr const char* kOtherNamesPath = RUVENMARK_SOURCE_DIR "/data/basemap/other_names.tsv";

inline ViewFrame FrameAt(GeoPoint centre, double zoom, int width, int height)
{
    return ViewFrame(MapView{centre, zoom, width, height});
}

inline QImage PaintGround(const BaseMap& map, const ViewFrame& frame, MapStyle style, double ratio = 1)
{
    QImage image(static_cast<int>(std::lround(frame.width * ratio)),
                 static_cast<int>(std::lround(frame.height * ratio)), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    BaseMapPainter(map).Paint(painter, {frame.left, frame.top, frame.world, frame.width, frame.height, ratio}, style,
                              false);
    return image;
}

inline int Difference(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
}

// How many pixels of a picture are such.
template <typename IsSuch>
std::size_t CountPixels(const QImage& image, IsSuch isSuch)
{
    std::size_t count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += isSuch(x, y) ? 1 : 0;
    return count;
}

// How many pixels of two pictures of one size differ visibly.
inline std::size_t DifferentPixels(const QImage& a, const QImage& b, int tolerated = 12)
{
    return CountPixels(a, [&](int x, int y) { return Difference(a.pixel(x, y), b.pixel(x, y)) > tolerated; });
}

} // namespace ruvenmark
