#include "desktop/map/tiles/tile_cache.h"

#include "mapfiles/tile_picture.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

constexpr qint64 kHour = 3600, kDay = 24 * kHour;

} // namespace

QString TileCache::DefaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + QStringLiteral("/ruvenmark/tiles");
}

TileCache::TileCache(QString folder, qint64 maxBytes) : m_folder(std::move(folder)), m_maxBytes(maxBytes) {}

QString TileCache::Path(const QString& source, TileId tile) const
{
    const QByteArray hash = QCryptographicHash::hash(source.toUtf8(), QCryptographicHash::Sha1).toHex().first(16);
    return QStringLiteral("%1/%2/%3/%4/%5.tile")
        .arg(m_folder, QString::fromLatin1(hash))
        .arg(tile.z)
        .arg(tile.x)
        .arg(tile.y);
}

// A tile's date of change is the time until which it is fresh.
std::optional<TileCache::Entry> TileCache::Load(const QString& source, TileId tile) const
{
    QFile file(Path(source, tile));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QDateTime freshUntil = file.fileTime(QFileDevice::FileModificationTime);
    return Entry{file.read(static_cast<qint64>(kMostTileBytes)), freshUntil > QDateTime::currentDateTime()};
}

void TileCache::Store(const QString& source, TileId tile, const QByteArray& bytes, const QDateTime& freshUntil)
{
    const QMutexLocker lock(&m_mutex);
    if (m_bytes < 0)
        CountBytes();
    const QString path = Path(source, tile);
    const qint64 former = QFileInfo(path).size();
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return;
    QFile written(path);
    if (written.open(QIODevice::ReadWrite))
        written.setFileTime(freshUntil, QFileDevice::FileModificationTime);
    m_bytes += bytes.size() - former;
    if (m_bytes > m_maxBytes)
        MakeRoom();
}

void TileCache::CountBytes()
{
    m_bytes = 0;
    QDirIterator files(m_folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        m_bytes += files.fileInfo().size();
    }
}

// Drops what goes stale first until a tenth is free.
void TileCache::MakeRoom()
{
    std::vector<QFileInfo> kept;
    m_bytes = 0;
    QDirIterator files(m_folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        kept.push_back(files.fileInfo());
        m_bytes += kept.back().size();
    }
    std::sort(kept.begin(), kept.end(),
              [](const QFileInfo& a, const QFileInfo& b) { return a.lastModified() < b.lastModified(); });
    for (const QFileInfo& file : kept) {
        if (m_bytes <= m_maxBytes / 10 * 9)
            return;
        if (QFile::remove(file.filePath()))
            m_bytes -= file.size();
    }
}

std::optional<qint64> FreshSeconds(const QByteArray& cacheControl)
{
    qint64 seconds = 7 * kDay; // What tile servers ask for where they do not say.
    for (const QByteArray& part : cacheControl.toLower().split(',')) {
        const QByteArray word = part.trimmed();
        if (word == "no-store")
            return std::nullopt;
        bool bNumber = false;
        const qint64 age = word.startsWith("max-age=") ? word.mid(8).toLongLong(&bNumber) : 0;
        if (bNumber)
            seconds = age;
    }
    return std::clamp(seconds, kHour, 30 * kDay);
}

} // namespace ruvenmark
