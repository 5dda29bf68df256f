#include "desktop/data_path.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ruvenmark {

QString DataPath(const QString& name)
{
    const QDir installed(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/ruvenmark"));
    const QDir source(QStringLiteral(RUVENMARK_DATA_DIR));
    for (const QDir& folder : {installed, source}) {
        QString path = QDir::cleanPath(folder.filePath(name));
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

} // namespace ruvenmark
