#pragma once

#include "desktop/map/tile_id.h"

#include <QByteArray>
#include <QString>

namespace ruvenmark {

// A tile archive: one SQLite file with the pictures of many tiles (MBTiles 1.3). Used on the thread that opened it.
class MbTiles {
public:
    // Raises Failure where the file is no such archive or holds no pictures.
    explicit MbTiles(const QString& path);
    MbTiles(const MbTiles&) = delete;
    MbTiles& operator=(const MbTiles&) = delete;
    ~MbTiles();

    // Empty for a tile that the file does not hold.
    QByteArray Read(TileId tile) const;
    int MaxZoom() const { return m_maxZoom; }
    const QString& Attribution() const { return m_attribution; } // Plain text.

private:
    void ReadMetadata();

    QString m_connection;
    QString m_attribution;
    int m_maxZoom = 0;
};

} // namespace ruvenmark
