#include "desktop/map/online_tiles.h"

#include "platform/failure.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace ruvenmark {

namespace {

constexpr int kServerMaxZoom = 19;
constexpr int kMemoryKilobytes = 96 * 1024;
constexpr int kLargestTile = 1024; // Pixels a side.
constexpr qsizetype kMostAbsent = 100000;
constexpr qint64 kMostFileBytes = qint64{4} * 1024 * 1024;

// A null picture for bytes that are none, or one of an unlikely size.
QImage Picture(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > kLargestTile || size.height() > kLargestTile)
        return {};
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QByteArray FromFolder(const QString& folder, TileId tile)
{
    for (const char* suffix : {"png", "jpg", "jpeg", "webp"}) {
        const QString path = QStringLiteral("%1/%2/%3/%4.").arg(folder).arg(tile.z).arg(tile.x).arg(tile.y);
        QFile file(path + QLatin1String(suffix));
        if (file.open(QIODevice::ReadOnly))
            return file.read(kMostFileBytes);
    }
    return {};
}

// The largest zoom that a folder of tiles has; negative where it has none.
int FolderMaxZoom(const QString& folder)
{
    int maxZoom = -1;
    for (const QString& name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool bNumber = false;
        const int zoom = name.toInt(&bNumber);
        if (bNumber && zoom >= 0 && zoom <= 22)
            maxZoom = std::max(maxZoom, zoom);
    }
    return maxZoom;
}

QString ServerAttribution(const QString& address)
{
    const QString host = QUrl(address).host();
    return host.endsWith(QStringLiteral("openstreetmap.org")) ? QStringLiteral("© OpenStreetMap contributors")
                                                              : QStringLiteral("Tiles: ") + host;
}

} // namespace

OnlineTiles::OnlineTiles(Options options, QObject* parent)
    : QObject(parent), m_options(std::move(options)), m_cache(m_options.cacheFolder, m_options.cacheBytes),
      m_fetcher(m_options.firstPause), m_pictures(kMemoryKilobytes)
{
    m_threads.setMaxThreadCount(2);
    connect(&m_fetcher, &TileFetcher::Fetched, this, &OnlineTiles::Decode);
}

OnlineTiles::~OnlineTiles()
{
    m_threads.clear();
    m_threads.waitForDone();
}

void OnlineTiles::Choose(const TileChoice& choice)
{
    using Kind = TileChoice::Kind;
    std::unique_ptr<MbTiles> archive;
    int maxZoom = kServerMaxZoom;
    if (choice.kind == Kind::Server && !IsTileTemplate(choice.where))
        throw Failure("the address of the tiles needs {z}, {x} and {y}");
    if (choice.kind == Kind::Folder && (maxZoom = FolderMaxZoom(choice.where)) < 0)
        throw Failure("the folder holds no tiles");
    if (choice.kind == Kind::Archive) {
        archive = std::make_unique<MbTiles>(choice.where);
        maxZoom = archive->MaxZoom();
    }
    m_choice = choice;
    m_archive = std::move(archive);
    m_maxZoom = maxZoom;
    m_attribution = m_archive ? m_archive->Attribution()
                              : (choice.kind == Kind::Server ? ServerAttribution(choice.where) : QString());
    ++m_generation;
    m_threads.clear();
    m_pictures.clear();
    m_wanted.clear();
    m_reading.clear();
    m_absent.clear();
    m_stale.clear();
    m_fetcher.SetAddress(choice.kind == Kind::Server ? choice.where : QString());
    emit Changed();
}

const QImage* OnlineTiles::Find(TileId tile) const
{
    return m_pictures.object(tile);
}

void OnlineTiles::Want(const std::vector<TileId>& tiles)
{
    if (!IsOn())
        return;
    m_wanted = tiles;
    for (const TileId tile : tiles)
        if (!m_pictures.contains(tile) && !m_reading.contains(tile) && !m_absent.contains(tile))
            ReadKept(tile);
    FetchWanted();
}

void OnlineTiles::ReadKept(TileId tile)
{
    m_reading.insert(tile);
    const QByteArray archived = m_archive ? m_archive->Read(tile) : QByteArray();
    m_threads.start([this, tile, archived, source = m_choice, generation = m_generation] {
        std::optional<TileCache::Entry> kept = TileCache::Entry{archived, true};
        if (source.kind == TileChoice::Kind::Folder)
            kept->bytes = FromFolder(source.where, tile);
        else if (source.kind == TileChoice::Kind::Server)
            kept = m_cache.Load(source.where, tile);
        const QImage picture = kept ? Picture(kept->bytes) : QImage();
        const bool bFresh = kept && kept->bFresh;
        QMetaObject::invokeMethod(this, [this, tile, picture, bFresh, generation] {
            if (generation != m_generation)
                return;
            m_reading.remove(tile);
            if (m_absent.size() > kMostAbsent)
                m_absent.clear();
            if (picture.isNull())
                m_absent.insert(tile);
            else
                Keep(tile, picture);
            if (!picture.isNull() && !bFresh)
                m_stale.insert(tile);
            FetchWanted();
        });
    });
}

void OnlineTiles::Keep(TileId tile, const QImage& picture)
{
    m_pictures.insert(tile, new QImage(picture), std::max<qsizetype>(picture.sizeInBytes() / 1024, 1));
    m_absent.remove(tile);
    emit Changed();
}

void OnlineTiles::FetchWanted()
{
    if (m_choice.kind != TileChoice::Kind::Server)
        return;
    std::vector<TileId> missing;
    for (const TileId tile : m_wanted)
        if (!m_reading.contains(tile) && (m_stale.contains(tile) || !m_pictures.contains(tile)))
            missing.push_back(tile);
    m_fetcher.SetWanted(std::move(missing));
}

// Only a picture that could be decoded is kept on disk.
void OnlineTiles::Decode(TileId tile, const QByteArray& bytes, const QDateTime& freshUntil)
{
    m_reading.insert(tile);
    m_stale.remove(tile);
    m_threads.start([this, tile, bytes, freshUntil, source = m_choice.where, generation = m_generation] {
        const QImage picture = Picture(bytes);
        if (!picture.isNull() && freshUntil.isValid())
            m_cache.Store(source, tile, bytes, freshUntil);
        QMetaObject::invokeMethod(this, [this, tile, picture, generation] {
            if (generation != m_generation)
                return;
            m_reading.remove(tile);
            if (picture.isNull())
                m_fetcher.Refuse(tile);
            else
                Keep(tile, picture);
        });
    });
}

} // namespace ruvenmark
