#include "desktop/map/base_map/square_painter.h"

#include "desktop/map/view/whole_pixels.h"

#include <QPainter>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ruvenmark {

namespace {

constexpr int kLeastKept = 64 * 1024; // KiB.
constexpr std::size_t kScalesKept = 4;
constexpr int kMostThreads = 4;

QImage Render(const BaseMapPainter& painter, const GroundSquare& tile)
{
    QImage image(SquarePainter::kSide, SquarePainter::kSide, QImage::Format_RGB32);
    image.setDevicePixelRatio(tile.ratio);
    QPainter onImage(&image);
    const int side = static_cast<int>(std::ceil(SquarePainter::kSide / tile.ratio));
    const BaseMapArea area{tile.column * double{SquarePainter::kSide} / tile.worldPixels,
                           tile.row * double{SquarePainter::kSide} / tile.worldPixels,
                           tile.worldPixels / tile.ratio,
                           side,
                           side,
                           tile.ratio};
    painter.Paint(onImage, area, tile.style, tile.bDark);
    return image;
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): Qt's name.
std::size_t qHash(const GroundSquare& tile, std::size_t seed)
{
    return qHashMulti(seed, tile.worldPixels, tile.column, tile.row, tile.ratio, static_cast<int>(tile.style),
                      tile.bDark);
}

// The view at one scale: where it lies among the squares, in device pixels from the world's corner.
struct SquarePainter::Span {
    double worldPixels = 0;
    std::int64_t left = 0, top = 0;
    int firstColumn = 0, firstRow = 0, lastColumn = 0, lastRow = 0;
};

SquarePainter::SquarePainter(const BaseMap& map, QObject* parent) : QObject(parent), m_painter(map), m_ready(kLeastKept)
{
    m_pool.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, kMostThreads));
}

SquarePainter::~SquarePainter()
{
    m_pool.clear();
    m_pool.waitForDone();
}

SquarePainter::Span SquarePainter::SpanOf(const ViewFrame& frame, const How& how, double worldPixels) const
{
    const double scale = worldPixels / (frame.world * how.ratio);
    const double width = frame.width * how.ratio * scale, height = frame.height * how.ratio * scale;
    Span span;
    span.worldPixels = worldPixels;
    span.left = std::llround(frame.left * worldPixels);
    span.top = std::llround(frame.top * worldPixels);
    const auto tile = [](double pixel) { return static_cast<int>(std::floor(pixel / kSide)); };
    span.firstColumn = tile(static_cast<double>(span.left));
    span.lastColumn = tile(static_cast<double>(span.left) + width - 1);
    span.firstRow = tile(static_cast<double>(span.top));
    span.lastRow = tile(static_cast<double>(span.top) + height - 1);
    return span;
}

// Where the world is a whole number of squares wide, its copies share them.
GroundSquare SquarePainter::TileAt(const Span& span, int column, int row, const How& how) const
{
    const double columns = span.worldPixels / kSide;
    if (columns == std::floor(columns) && columns <= 1 << 24) {
        const int count = static_cast<int>(columns);
        column = ((column % count) + count) % count;
    }
    return {span.worldPixels, column, row, how.ratio, how.style, how.bDark};
}

QList<GroundSquare> SquarePainter::Tiles(const Span& span, const How& how, int margin) const
{
    struct Spot {
        int column, row, distance;
    };
    std::vector<Spot> spots;
    for (int row = span.firstRow - margin; row <= span.lastRow + margin; ++row) {
        for (int column = span.firstColumn - margin; column <= span.lastColumn + margin; ++column)
            spots.push_back({column, row,
                             std::abs(2 * column - span.firstColumn - span.lastColumn) +
                                 std::abs(2 * row - span.firstRow - span.lastRow)});
    }
    std::stable_sort(spots.begin(), spots.end(), [](const Spot& a, const Spot& b) { return a.distance < b.distance; });
    QList<GroundSquare> tiles;
    for (const Spot& spot : spots) {
        const GroundSquare tile = TileAt(span, spot.column, spot.row, how);
        if (!tiles.contains(tile))
            tiles.append(tile);
    }
    return tiles;
}

// scale: device pixels of the painter for one of the squares'.
bool SquarePainter::PaintReady(QPainter& painter, const Span& span, const How& how, double scale)
{
    bool bWhole = true;
    for (int row = span.firstRow; row <= span.lastRow; ++row) {
        for (int column = span.firstColumn; column <= span.lastColumn; ++column) {
            const QImage* image = m_ready.object(TileAt(span, column, row, how));
            bWhole = bWhole && image;
            if (!image)
                continue;
            const auto x = static_cast<double>(std::int64_t{column} * kSide - span.left);
            const auto y = static_cast<double>(std::int64_t{row} * kSide - span.top);
            painter.drawImage(QRectF(x * scale, y * scale, kSide * scale, kSide * scale), *image,
                              QRectF(0, 0, kSide, kSide));
        }
    }
    return bWhole;
}

void SquarePainter::PaintOlder(QPainter& painter, const ViewFrame& frame, const How& how)
{
    const double worldPixels = frame.world * how.ratio;
    for (const double older : m_scales) {
        const double scale = worldPixels / older;
        if (scale != 1 && scale > 1.0 / 16 && scale < 64)
            PaintReady(painter, SpanOf(frame, how, older), how, scale);
    }
}

bool SquarePainter::Paint(QPainter& painter, const ViewFrame& frame, const How& how)
{
    const Span span = SpanOf(frame, how, frame.world * how.ratio);
    const QList<GroundSquare> visible = Tiles(span, how, 0);
    m_visible = QSet<GroundSquare>(visible.begin(), visible.end());
    m_ready.setMaxCost(std::max<qsizetype>(kLeastKept, 5 * visible.size() * kSide * kSide * 4 / 1024));
    if (how.bWait)
        Finish(visible);

    painter.save();
    painter.setClipRect(frame.Rect(), Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.scale(1 / how.ratio, 1 / how.ratio);
    ToWholePixels(painter);
    const auto isReady = [this](const GroundSquare& tile) { return m_ready.contains(tile); };
    if (!std::all_of(visible.begin(), visible.end(), isReady)) {
        painter.fillRect(QRectF(0, 0, frame.width * how.ratio, frame.height * how.ratio),
                         PaletteFor(how.style, how.bDark).water);
        PaintOlder(painter, frame, how);
    }
    const bool bWhole = PaintReady(painter, span, how, 1);
    painter.restore();
    if (bWhole)
        Remember(span.worldPixels);

    m_wanted.clear();
    for (const GroundSquare& tile : Tiles(span, how, how.bWait ? 0 : 1)) // Those just outside come last.
        if (!m_ready.contains(tile) && !m_started.contains(tile))
            m_wanted.append(tile);
    StartNext();
    return bWhole;
}

void SquarePainter::Finish(const QList<GroundSquare>& tiles)
{
    struct Job {
        GroundSquare tile;
        QImage image;
    };
    std::vector<Job> jobs;
    for (const GroundSquare& tile : tiles)
        if (!m_ready.contains(tile))
            jobs.push_back({tile, {}});
    for (Job& job : jobs)
        m_pool.start([this, &job] { job.image = Render(m_painter, job.tile); });
    m_pool.waitForDone();
    for (const Job& job : jobs)
        Keep(job.tile, job.image);
}

// Only as many at a time as there are threads: what is no longer wanted is never begun.
bool SquarePainter::IsReady() const
{
    return std::all_of(m_visible.begin(), m_visible.end(),
                       [this](const GroundSquare& tile) { return m_ready.contains(tile); });
}

void SquarePainter::StartNext()
{
    while (!m_wanted.isEmpty() && m_started.size() < m_pool.maxThreadCount()) {
        const GroundSquare tile = m_wanted.takeFirst();
        m_started.insert(tile);
        m_pool.start([this, tile] {
            const QImage image = Render(m_painter, tile);
            QMetaObject::invokeMethod(
                this,
                [this, tile, image] {
                    m_started.remove(tile);
                    Keep(tile, image);
                    StartNext();
                    if (m_visible.contains(tile))
                        emit Changed();
                },
                Qt::QueuedConnection);
        });
    }
}

void SquarePainter::Keep(const GroundSquare& tile, const QImage& image)
{
    m_ready.insert(tile, new QImage(image), image.sizeInBytes() / 1024);
}

void SquarePainter::Remember(double worldPixels)
{
    if (!m_scales.empty() && m_scales.back() == worldPixels)
        return;
    std::erase(m_scales, worldPixels);
    m_scales.push_back(worldPixels);
    if (m_scales.size() > kScalesKept)
        m_scales.pop_front();
}

} // namespace ruvenmark
