#pragma once

#include "mapfiles/tile_id.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <vector>

class QNetworkReply;
class QNetworkRequest;
class QUrl;

namespace ruvenmark {

// As every request of this program for a tile: who asks, and for which pictures.
QNetworkRequest TileRequest(const QUrl& address);

// Fetches tiles from a server: two at once at most, those first that are wanted now, with growing pauses while the
// server fails or refuses.
class TileFetcher : public QObject {
    Q_OBJECT

public:
    static constexpr int kMostAtOnce = 2;

    explicit TileFetcher(std::chrono::milliseconds firstPause, QObject* parent = nullptr);

    // Forgets what is wanted and refused. As IsTileUrl wants it; an empty one fetches nothing.
    void SetAddress(const QString& address);
    // In order of urgency; replaces what was wanted before and has not begun.
    void SetWanted(std::vector<TileId> wanted);
    bool IsRefused(TileId tile) const;
    // Whether something is still under way; what waits behind a pause is not.
    bool IsBusy() const { return !m_running.isEmpty(); }
    // The answer was no picture after all: as bad as an error.
    void Refuse(TileId tile);

signals:
    // `freshUntil` is null where the answer must not be kept.
    void Fetched(ruvenmark::TileId tile, const QByteArray& bytes, const QDateTime& freshUntil);
    void Failed(const QString& reason); // The server did not answer, or refused; a tile that it has not is no failure.

private:
    void Pump();
    void Begin(TileId tile);
    void End(TileId tile, QNetworkReply& reply);
    void Mark(TileId tile);
    void Accept(TileId tile, QNetworkReply& reply);
    void Pause(std::chrono::milliseconds atLeast);

    QNetworkAccessManager m_network;
    QString m_address;
    std::chrono::milliseconds m_firstPause;
    std::chrono::milliseconds m_pause;
    QTimer m_resume;
    std::vector<TileId> m_wanted;
    QHash<TileId, QNetworkReply*> m_running;
    QHash<TileId, QDateTime> m_refusedUntil;
};

} // namespace ruvenmark
