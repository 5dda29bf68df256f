#pragma once

#include "desktop/map/mbtiles.h"
#include "desktop/map/tile_cache.h"
#include "desktop/map/tile_fetcher.h"
#include "desktop/map/tile_id.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QString>
#include <QThreadPool>

#include <chrono>
#include <memory>
#include <vector>

namespace ruvenmark {

// Where pictures of the ground come from. `where` is a URL with {z}, {x} and {y}, the folder that holds z/x/y.png, or
// an MBTiles file.
struct TileChoice {
    enum class Kind { Off, Server, Folder, Archive };
    Kind kind = Kind::Off;
    QString where;
};

// Pictures of the ground over the built-in map. Nothing is asked of the network before the source is a server. Reading
// and decoding happens in threads of its own.
class OnlineTiles : public QObject {
    Q_OBJECT

public:
    struct Options {
        QString cacheFolder = TileCache::DefaultFolder();
        qint64 cacheBytes = TileCache::kDefaultBytes;
        std::chrono::milliseconds firstPause{2000};
    };

    explicit OnlineTiles(QObject* parent = nullptr) : OnlineTiles(Options(), parent) {}
    explicit OnlineTiles(Options options, QObject* parent = nullptr);
    ~OnlineTiles() override;

    // Raises Failure for what cannot be used; the former choice then stays.
    void Choose(const TileChoice& choice);
    bool IsOn() const { return m_choice.kind != TileChoice::Kind::Off; }
    const QString& Attribution() const { return m_attribution; } // Plain text, to be shown with the tiles.
    int MaxZoom() const { return m_maxZoom; }

    // Null while the tile is not there. The picture stays valid until the next event is handled.
    const QImage* Find(TileId tile) const;
    // What is on the screen, nearest to its middle first; sees to it that the missing ones come.
    void Want(const std::vector<TileId>& tiles);

signals:
    void Changed(); // More can be painted.

private:
    void ReadKept(TileId tile);
    void Keep(TileId tile, const QImage& picture);
    void Decode(TileId tile, const QByteArray& bytes, const QDateTime& freshUntil);
    void FetchWanted();

    Options m_options;
    TileChoice m_choice;
    QString m_attribution;
    int m_maxZoom = 0;
    int m_generation = 0; // What was begun for a former choice is dropped.
    TileCache m_cache;
    TileFetcher m_fetcher;
    std::unique_ptr<MbTiles> m_archive;
    mutable QCache<TileId, QImage> m_pictures;
    std::vector<TileId> m_wanted;
    QSet<TileId> m_reading, m_absent, m_stale; // Absent: looked for on disk in vain.
    QThreadPool m_threads;
};

} // namespace ruvenmark
