#include "desktop/data_path.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ruvenmark {

QString DataPath(const QString& name)
{
    const QDir installed(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/ruvenmark"));
    QList<QDir> folders{installed};
#ifdef RUVENMARK_DATA_DIR // Not in a package: there is no source tree where it is installed.
    folders.append(QDir(QStringLiteral(RUVENMARK_DATA_DIR)));
#endif
    for (const QDir& folder : folders) {
        QString path = QDir::cleanPath(folder.filePath(name));
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

} // namespace ruvenmark
