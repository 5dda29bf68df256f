#pragma once

#include "desktop/map/base_map/base_map_painter.h"
#include "desktop/map/view/view_frame.h"

#include <QCache>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSet>
#include <QThreadPool>

#include <cstdint>
#include <deque>

class QPainter;

namespace ruvenmark {

// One square of the ground at one scale, in one look. Columns and rows are counted from the world's left top corner.
struct GroundSquare {
    double worldPixels = 0; // Device pixels that the world is wide.
    std::int32_t column = 0, row = 0;
    double ratio = 1;
    MapStyle style = MapStyle::Road;
    bool bDark = false;
    friend bool operator==(const GroundSquare&, const GroundSquare&) = default;
};
// NOLINTNEXTLINE(readability-identifier-naming): Qt's name.
std::size_t qHash(const GroundSquare& tile, std::size_t seed = 0);

// Paints the ground from squares that worker threads prepare at exactly the scale that is shown and that are kept for
// the next frame. What is not ready yet shows as it was at the scales before. For the thread it was made in.
class SquarePainter : public QObject {
    Q_OBJECT

public:
    static constexpr int kSide = 512; // Device pixels.

    struct How {
        MapStyle style = MapStyle::Road;
        bool bDark = false;
        double ratio = 1;   // Device pixels for one of the view.
        bool bWait = false; // Paint everything before returning: the frame is the only one.
    };

    explicit SquarePainter(const BaseMap& map, QObject* parent = nullptr); // The map must outlive this.
    ~SquarePainter() override;

    // From the painter's origin on. Returns whether all of the view was ready; else Changed follows.
    bool Paint(QPainter& painter, const ViewFrame& frame, const How& how);
    // Whether all of the last view is there.
    bool IsReady() const;

signals:
    void Changed(); // More of the last view can be painted.

private:
    struct Span;

    Span SpanOf(const ViewFrame& frame, const How& how, double worldPixels) const;
    GroundSquare TileAt(const Span& span, int column, int row, const How& how) const;
    QList<GroundSquare> Tiles(const Span& span, const How& how, int margin) const;
    bool PaintReady(QPainter& painter, const Span& span, const How& how, double scale);
    void PaintOlder(QPainter& painter, const ViewFrame& frame, const How& how);
    void Finish(const QList<GroundSquare>& tiles);
    void StartNext();
    void Keep(const GroundSquare& tile, const QImage& image);
    void Remember(double worldPixels);

    BaseMapPainter m_painter;
    QCache<GroundSquare, QImage> m_ready; // Cost: KiB.
    QList<GroundSquare> m_wanted;         // Nearest the middle of the view first.
    QSet<GroundSquare> m_visible, m_started;
    std::deque<double> m_scales; // World widths that were shown whole, the last one last.
    QThreadPool m_pool;
};

} // namespace ruvenmark
