#include "desktop/map/tiles/map_tiles.h"

#include "desktop/map/tiles/local_tiles.h"
#include "desktop/map/tiles/tile_image.h"
#include "desktop/shown_text.h"
#include "map/tile_url.h"
#include "platform/failure.h"

#include <QUrl>

#include <algorithm>
#include <optional>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kMemoryKilobytes = 96 * 1024;
constexpr qsizetype kMostAbsent = 100000;
constexpr qsizetype kMostAttribution = 120; // Characters.

QString ServerAttribution(const TileChoice& choice)
{
    if (!choice.credit.empty())
        return ForDisplay(choice.credit);
    const QString host = QUrl(QString::fromStdString(choice.where)).host();
    return host.endsWith(QStringLiteral("openstreetmap.org")) ? QStringLiteral("© OpenStreetMap contributors")
                                                              : QStringLiteral("Tiles: ") + host;
}

QByteArray ToBytes(const std::string& bytes)
{
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

} // namespace

struct MapTiles::Kept {
    QImage picture;
    bool bFresh = true;
    QString problem;
};

MapTiles::MapTiles(Options options, QObject* parent)
    : QObject(parent), m_options(std::move(options)), m_cache(m_options.cacheFolder, m_options.cacheBytes),
      m_fetcher(m_options.firstPause), m_pictures(kMemoryKilobytes)
{
    m_threads.setMaxThreadCount(2);
    connect(&m_fetcher, &TileFetcher::Fetched, this, &MapTiles::Decode);
    connect(&m_fetcher, &TileFetcher::Failed, this, &MapTiles::Tell);
}

MapTiles::~MapTiles()
{
    Forget();
    m_threads.waitForDone();
}

// Work gives, in a thread, what take is called with in this one; not if another choice was made meanwhile.
template <typename Work, typename Take>
void MapTiles::InThread(Work work, Take take)
{
    m_threads.start([this, work, take, generation = m_generation] {
        auto result = work();
        QMetaObject::invokeMethod(this, [this, take, generation, result = std::move(result)] {
            if (generation == m_generation)
                take(result);
        });
    });
}

void MapTiles::Forget()
{
    ++m_generation;
    m_threads.clear();
    if (m_local)
        m_local->Stop();
    m_local.reset();
    m_bUsable = m_bOpening = false;
    m_maxZoom = 0;
    m_attribution.clear();
    m_problem.clear();
    m_pictures.clear();
    m_wanted.clear();
    m_reading.clear();
    m_absent.clear();
    m_stale.clear();
    m_fetcher.SetAddress({});
}

void MapTiles::Choose(const TileChoice& choice)
{
    Forget();
    m_choice = choice;
    if (choice.kind == TileChoice::Kind::Server)
        UseServer();
    else if (choice.kind == TileChoice::Kind::Local)
        OpenLocal();
    emit Changed();
}

void MapTiles::UseServer()
{
    if (!IsTileUrl(m_choice.where)) {
        Tell(QStringLiteral("The address of the tiles needs http or https, {z}, {x} and {y}."));
        return;
    }
    m_bUsable = true;
    m_maxZoom = m_choice.maxZoom;
    m_attribution = ServerAttribution(m_choice).left(kMostAttribution);
    m_fetcher.SetAddress(QString::fromStdString(m_choice.where));
}

void MapTiles::OpenLocal()
{
    using Result = std::pair<std::shared_ptr<LocalTiles>, QString>;
    m_bOpening = true;
    InThread(
        [path = m_choice.where]() -> Result {
            try {
                return {std::make_shared<LocalTiles>(OpenTileSource(path)), QString()};
            } catch (const Failure& failure) {
                return {nullptr, ForDisplay(failure.what())};
            }
        },
        [this](const Result& result) { Opened(result.first, result.second); });
}

void MapTiles::Opened(const std::shared_ptr<LocalTiles>& local, const QString& problem)
{
    m_bOpening = false;
    m_local = local;
    m_bUsable = local != nullptr;
    if (local) {
        m_maxZoom = local->MaxZoom();
        m_attribution = ForDisplay(local->Attribution()).left(kMostAttribution);
    } else {
        Tell(problem);
    }
    emit Changed();
}

void MapTiles::Tell(const QString& problem)
{
    if (!m_problem.isEmpty() || problem.isEmpty())
        return;
    m_problem = problem;
    emit ProblemFound(problem);
}

const QImage* MapTiles::Find(TileId tile) const
{
    return m_pictures.object(tile);
}

void MapTiles::Want(const std::vector<TileId>& tiles)
{
    if (!IsOn())
        return;
    m_wanted = tiles;
    for (const TileId tile : tiles)
        if (!m_pictures.contains(tile) && !m_reading.contains(tile) && !m_absent.contains(tile))
            ReadKept(tile);
    FetchWanted();
}

void MapTiles::ReadKept(TileId tile)
{
    m_reading.insert(tile);
    const auto take = [this, tile](const Kept& kept) { TakeKept(tile, kept); };
    if (!m_local) {
        InThread(
            [this, tile, source = QString::fromStdString(m_choice.where)] {
                const auto kept = m_cache.Load(source, tile);
                return kept ? Kept{TileImage(kept->bytes), kept->bFresh, {}} : Kept();
            },
            take);
        return;
    }
    InThread(
        [tile, local = m_local] {
            try {
                const std::string bytes = local->Read(tile);
                Kept kept{TileImage(ToBytes(bytes)), true, {}};
                if (kept.picture.isNull() && !bytes.empty())
                    kept.problem = QStringLiteral("A tile is no PNG, JPEG or WebP picture that can be shown.");
                return kept;
            } catch (const Failure& failure) {
                return Kept{{}, true, ForDisplay(failure.what())};
            }
        },
        take);
}

void MapTiles::TakeKept(TileId tile, const Kept& kept)
{
    m_reading.remove(tile);
    Tell(kept.problem);
    if (m_absent.size() > kMostAbsent)
        m_absent.clear();
    if (kept.picture.isNull())
        m_absent.insert(tile);
    else
        Keep(tile, kept.picture);
    if (!kept.picture.isNull() && !kept.bFresh)
        m_stale.insert(tile);
    FetchWanted();
}

void MapTiles::Keep(TileId tile, const QImage& picture)
{
    m_pictures.insert(tile, new QImage(picture), std::max<qsizetype>(picture.sizeInBytes() / 1024, 1));
    m_absent.remove(tile);
    emit Changed();
}

void MapTiles::FetchWanted()
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
void MapTiles::Decode(TileId tile, const QByteArray& bytes, const QDateTime& freshUntil)
{
    m_reading.insert(tile);
    m_stale.remove(tile);
    m_problem.clear(); // It answers again; the next failure is news.
    InThread(
        [this, tile, bytes, freshUntil, source = QString::fromStdString(m_choice.where)] {
            QImage picture = TileImage(bytes);
            if (!picture.isNull() && freshUntil.isValid())
                m_cache.Store(source, tile, bytes, freshUntil);
            return picture;
        },
        [this, tile](const QImage& picture) {
            m_reading.remove(tile);
            if (picture.isNull())
                m_fetcher.Refuse(tile);
            else
                Keep(tile, picture);
        });
}

} // namespace ruvenmark
