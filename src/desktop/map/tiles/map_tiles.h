#pragma once

#include "desktop/map/tiles/tile_cache.h"
#include "desktop/map/tiles/tile_choice.h"
#include "desktop/map/tiles/tile_fetcher.h"
#include "mapfiles/tile_id.h"

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

class LocalTiles;

// Pictures of the ground over the built-in map. Nothing is asked of the network before the source is a server. Opening,
// reading and decoding happen in threads of its own.
class MapTiles : public QObject {
    Q_OBJECT

public:
    struct Options {
        QString cacheFolder = TileCache::DefaultFolder();
        qint64 cacheBytes = TileCache::kDefaultBytes;
        std::chrono::milliseconds firstPause{2000};
    };

    explicit MapTiles(QObject* parent = nullptr) : MapTiles(Options(), parent) {}
    explicit MapTiles(Options options, QObject* parent = nullptr);
    ~MapTiles() override;

    // What cannot be used shows no tiles and is told by ProblemFound, in part only later.
    void Choose(const TileChoice& choice);
    bool IsOn() const { return m_choice.kind != TileChoice::Kind::Off && m_bUsable; }
    bool IsOpening() const { return m_bOpening; } // What lies on this machine, in a thread.
    bool IsBusy() const { return m_bOpening || !m_reading.isEmpty() || m_fetcher.IsBusy(); } // More may come soon.
    const QString& Attribution() const { return m_attribution; } // Plain text, to be shown with the tiles.
    int MaxZoom() const { return m_maxZoom; }
    // Why there are no tiles, or not all: one line for the operator. Empty while all is well.
    const QString& Problem() const { return m_problem; }

    // Null while the tile is not there. The picture stays valid until the next event is handled.
    const QImage* Find(TileId tile) const;
    // What is on the screen, nearest to its middle first; sees to it that the missing ones come.
    void Want(const std::vector<TileId>& tiles);

signals:
    void Changed(); // More can be painted.
    void ProblemFound(const QString& problem);

private:
    struct Kept; // What was found of a tile without the network.

    void Forget();
    void UseServer();
    void OpenLocal();
    void Opened(const std::shared_ptr<LocalTiles>& local, const QString& problem);
    void ReadKept(TileId tile);
    void TakeKept(TileId tile, const Kept& kept);
    void Keep(TileId tile, const QImage& picture);
    void Decode(TileId tile, const QByteArray& bytes, const QDateTime& freshUntil);
    void FetchWanted();
    void Tell(const QString& problem);
    template <typename Work, typename Take>
    void InThread(Work work, Take take);

    Options m_options;
    TileChoice m_choice;
    QString m_attribution, m_problem;
    int m_maxZoom = 0;
    int m_generation = 0; // What was begun for a former choice is dropped.
    bool m_bUsable = false, m_bOpening = false;
    TileCache m_cache;
    TileFetcher m_fetcher;
    std::shared_ptr<LocalTiles> m_local; // Shared with the threads that read.
    mutable QCache<TileId, QImage> m_pictures;
    std::vector<TileId> m_wanted;
    QSet<TileId> m_reading, m_absent, m_stale; // Absent: looked for on disk in vain.
    QThreadPool m_threads;
};

} // namespace ruvenmark
