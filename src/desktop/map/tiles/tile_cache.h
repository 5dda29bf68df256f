#pragma once

#include "mapfiles/tile_id.h"

#include <QByteArray>
#include <QDateTime>
#include <QMutex>
#include <QString>

#include <optional>

namespace ruvenmark {

// Fetched tiles on disk, a folder for each source. It only ever saves a fetch: whatever fails here is as if the tile
// had not been kept. Any thread may use it.
class TileCache {
public:
    static constexpr qint64 kDefaultBytes = qint64{200} * 1024 * 1024;

    // The user's cache folder.
    static QString DefaultFolder();

    explicit TileCache(QString folder = DefaultFolder(), qint64 maxBytes = kDefaultBytes);

    struct Entry {
        QByteArray bytes;
        bool bFresh = false; // False: show it, but fetch it anew.
    };
    std::optional<Entry> Load(const QString& source, TileId tile) const;
    void Store(const QString& source, TileId tile, const QByteArray& bytes, const QDateTime& freshUntil);

private:
    QString Path(const QString& source, TileId tile) const;
    void CountBytes();
    void MakeRoom();

    QString m_folder;
    qint64 m_maxBytes;
    QMutex m_mutex;
    qint64 m_bytes = -1; // Not counted yet.
};

// How long a fetched tile may be shown without asking again, from its Cache-Control header; nothing where it must not
// be kept at all.
std::optional<qint64> FreshSeconds(const QByteArray& cacheControl);

} // namespace ruvenmark
