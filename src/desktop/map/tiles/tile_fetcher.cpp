#include "desktop/map/tiles/tile_fetcher.h"

#include "desktop/map/tiles/tile_cache.h"
#include "mapfiles/tile_picture.h"
#include "platform/program_name.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kLongestPause = 5min;
constexpr std::chrono::milliseconds kTransferLimit = 20s;
constexpr qint64 kRefusedSeconds = 300;
constexpr qint64 kMostRefused = 10000;

QByteArray Agent()
{
    return QByteArrayLiteral("Ruvenmark/") +
           QByteArray(ProgramVersion().data(), static_cast<qsizetype>(ProgramVersion().size())) +
           " (+desktop APRS client)";
}

QUrl Address(const QString& pattern, TileId tile)
{
    QString address = pattern;
    address.replace(QStringLiteral("{z}"), QString::number(tile.z));
    address.replace(QStringLiteral("{x}"), QString::number(tile.x));
    address.replace(QStringLiteral("{y}"), QString::number(tile.y));
    return QUrl(address);
}

// A first look only: what the bytes are is seen when they are unpacked.
bool IsPicture(const QNetworkReply& reply)
{
    return reply.header(QNetworkRequest::ContentTypeHeader).toString().startsWith(QStringLiteral("image/"));
}

// Not the network's own words where the server has spoken: they hold the whole address.
QString ReasonOf(const QNetworkReply& reply, int status)
{
    const QString host = reply.url().host();
    if (status == 200)
        return host + QStringLiteral(" sends no pictures");
    if (status != 0)
        return host + QStringLiteral(" answers with status ") + QString::number(status);
    return host + QStringLiteral(" does not answer: ") + reply.errorString();
}

} // namespace

QNetworkRequest TileRequest(const QUrl& address)
{
    QNetworkRequest request(address);
    request.setRawHeader("User-Agent", Agent());
    request.setRawHeader("Accept", "image/png, image/jpeg, image/webp");
    return request;
}

TileFetcher::TileFetcher(std::chrono::milliseconds firstPause, QObject* parent)
    : QObject(parent), m_firstPause(firstPause), m_pause(firstPause)
{
    m_network.setTransferTimeout(static_cast<int>(kTransferLimit.count()));
    m_resume.setSingleShot(true);
    connect(&m_resume, &QTimer::timeout, this, &TileFetcher::Pump);
}

void TileFetcher::SetAddress(const QString& address)
{
    m_address = address;
    m_wanted.clear();
    m_refusedUntil.clear();
    m_pause = m_firstPause;
    m_resume.stop();
    for (QNetworkReply* reply : std::exchange(m_running, {})) {
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void TileFetcher::SetWanted(std::vector<TileId> wanted)
{
    m_wanted = std::move(wanted);
    Pump();
}

bool TileFetcher::IsRefused(TileId tile) const
{
    const auto it = m_refusedUntil.find(tile);
    return it != m_refusedUntil.end() && *it > QDateTime::currentDateTimeUtc();
}

void TileFetcher::Refuse(TileId tile)
{
    Mark(tile);
    Pause(0ms);
}

void TileFetcher::Mark(TileId tile)
{
    if (m_refusedUntil.size() >= kMostRefused)
        m_refusedUntil.clear();
    m_refusedUntil.insert(tile, QDateTime::currentDateTimeUtc().addSecs(kRefusedSeconds));
}

void TileFetcher::Pump()
{
    if (m_address.isEmpty() || m_resume.isActive())
        return;
    for (const TileId tile : std::exchange(m_wanted, {})) {
        if (m_running.contains(tile) || IsRefused(tile))
            continue;
        if (m_running.size() < kMostAtOnce)
            Begin(tile);
        else
            m_wanted.push_back(tile);
    }
}

void TileFetcher::Begin(TileId tile)
{
    QNetworkReply* reply = m_network.get(TileRequest(Address(m_address, tile)));
    m_running.insert(tile, reply);
    connect(reply, &QNetworkReply::downloadProgress, this, [reply](qint64 received, qint64) {
        if (received > static_cast<qint64>(kMostTileBytes))
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, tile, reply] { End(tile, *reply); });
}

void TileFetcher::End(TileId tile, QNetworkReply& reply)
{
    m_running.remove(tile);
    reply.deleteLater();
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (reply.error() == QNetworkReply::NoError && status == 200 && IsPicture(reply)) {
        Accept(tile, reply);
    } else if (status == 404 || status == 410) {
        Mark(tile);
    } else {
        emit Failed(ReasonOf(reply, status));
        const bool bMayPass = status < 200 || status >= 500 || status == 429;
        if (bMayPass)
            m_wanted.insert(m_wanted.begin(), tile);
        else
            Mark(tile);
        const qint64 asked = std::clamp(reply.rawHeader("Retry-After").toLongLong(), qint64{0}, qint64{3600});
        Pause(std::chrono::seconds(asked));
    }
    Pump();
}

void TileFetcher::Accept(TileId tile, QNetworkReply& reply)
{
    m_pause = m_firstPause;
    const auto seconds = FreshSeconds(reply.rawHeader("Cache-Control"));
    emit Fetched(tile, reply.readAll(), seconds ? QDateTime::currentDateTimeUtc().addSecs(*seconds) : QDateTime());
}

void TileFetcher::Pause(std::chrono::milliseconds atLeast)
{
    m_resume.start(std::max(m_pause, atLeast));
    m_pause = std::min(m_pause * 2, kLongestPause);
}

} // namespace ruvenmark
