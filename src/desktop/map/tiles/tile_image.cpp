#include "desktop/map/tiles/tile_image.h"

#include "mapfiles/tile_picture.h"

#include <QBuffer>
#include <QImageReader>

namespace ruvenmark {

namespace {

const char* NameOf(TileFormat format)
{
    switch (format) {
    case TileFormat::Png:
        return "png";
    case TileFormat::Jpeg:
        return "jpeg";
    case TileFormat::WebP:
        break;
    }
    return "webp";
}

bool IsFit(QSize size)
{
    return !size.isEmpty() && size.width() <= kLargestTile && size.height() <= kLargestTile;
}

} // namespace

QImage TileImage(QByteArray bytes, QImage::Format format)
{
    const auto found = FormatOfTile({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (!found)
        return {};
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, NameOf(*found));
    reader.setAutoDetectImageFormat(false); // Else a broken picture is offered to every other plugin.
    if (!IsFit(reader.size()))
        return {};
    const QImage picture = reader.read();
    return IsFit(picture.size()) ? picture.convertToFormat(format) : QImage();
}

} // namespace ruvenmark
