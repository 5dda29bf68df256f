#include "desktop/tile_choice.h"

#include "map/tile_settings.h"

#include <QFile>
#include <QFileInfo>

namespace ruvenmark {

TileChoice TileChoiceOf(const TileSettings& settings)
{
    if (!settings.source.empty()) {
        const QString path = QFile::decodeName(QByteArray::fromStdString(settings.source));
        const auto kind = QFileInfo(path).isDir() ? TileChoice::Kind::Folder : TileChoice::Kind::Archive;
        return {kind, path};
    }
    if (settings.bOnline)
        return {TileChoice::Kind::Server, QString::fromStdString(settings.urlTemplate)};
    return {};
}

} // namespace ruvenmark
