#pragma once

#include <QByteArray>
#include <QImage>

namespace ruvenmark {

// The picture of a tile's bytes, which may be anybody's: only of the formats that FormatOfTile knows, whatever else Qt
// could read. Null for everything else and for a picture of more than kLargestTile a side. Any thread may call it.
QImage TileImage(QByteArray bytes, QImage::Format format = QImage::Format_ARGB32_Premultiplied);

} // namespace ruvenmark
