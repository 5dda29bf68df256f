#include "desktop/map/base_map/base_map_painter.h"

#include "desktop/map/base_map/layer_paths.h"
#include "platform/geometry.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ruvenmark {

namespace {

constexpr double kMargin = 4;  // Pixels around the area, so that lines just outside show their half width.
constexpr double kStep = 0.35; // Device pixels; points closer together are left out.
// Device pixels of the side of the squares that are painted one by one: the time of Qt's antialiasing rasterizer grows
// with the square of what lies on a line of pixels.
constexpr double kPart = 128;
constexpr std::uint32_t kAll = ~0U;

constexpr std::uint32_t Bit(int attribute)
{
    return 1U << static_cast<unsigned>(attribute);
}

// Between two zooms, linear; the same beyond them.
double Ramp(double zoom, double lowZoom, double low, double highZoom, double high)
{
    const double t = std::clamp((zoom - lowZoom) / (highZoom - lowZoom), 0.0, 1.0);
    return low + t * (high - low);
}

QPen LinePen(const QColor& color, double width)
{
    return {color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

} // namespace

// One part of the area that is painted for itself; its corner is the painter's origin.
struct BaseMapPainter::Canvas {
    QPainter& painter;
    double left, top, worldPixels, devicePixelRatio; // As in BaseMapArea.
    QRectF rect;                                     // In the painter's units, from the origin.
    BaseMapPalette palette;
    bool bDark;
    double zoom;       // In units of the painter: how wide lines are.
    double detailZoom; // In device pixels: how much detail.
};

// Calls add(reader, toPixel, attribute's bit) for each feature in view or within margin (painter's units) of it, once
// for each copy of the world.
template <typename Add>
void BaseMapPainter::Each(const Canvas& canvas, BaseMapLayer layer, double margin, Add add) const
{
    const VectorLayer& source = m_map.Layer(layer, canvas.detailZoom);
    const double around = margin / canvas.worldPixels, scale = canvas.worldPixels / source.UnitsPerWorld();
    const double left = canvas.left - around, top = canvas.top - around;
    const double right = canvas.left + canvas.rect.width() / canvas.worldPixels + around;
    const double bottom = canvas.top + canvas.rect.height() / canvas.worldPixels + around;
    for (double copy = std::floor(left); copy <= std::floor(right); ++copy) {
        const WorldRect rect{left - copy, top, right - copy, bottom};
        const UnitsToPixels toPixel{scale, (copy - canvas.left) * canvas.worldPixels, -canvas.top * canvas.worldPixels};
        for (const VectorLayer::Leaf& leaf : source.LeavesIn(rect)) {
            LeafReader reader(source, leaf);
            while (reader.Next())
                if (reader.Points().size() > 1)
                    add(reader, toPixel, Bit(reader.Attribute() & 31));
        }
    }
}

std::vector<QPainterPath> BaseMapPainter::Fill(const Canvas& canvas, BaseMapLayer layer,
                                               const std::vector<std::uint32_t>& wanted) const
{
    std::vector<QPainterPath> paths(wanted.size());
    for (QPainterPath& path : paths)
        path.setFillRule(Qt::OddEvenFill);
    const double step = kStep / canvas.devicePixelRatio;
    const QRectF rect = canvas.rect.adjusted(-1, -1, 1, 1);
    Each(canvas, layer, kMargin, [&](const LeafReader& reader, const UnitsToPixels& toPixel, std::uint32_t bit) {
        for (std::size_t i = 0; i < wanted.size(); ++i)
            if ((wanted[i] & bit) != 0)
                AddRing(paths[i], reader, toPixel, rect, step);
    });
    return paths;
}

void BaseMapPainter::Stroke(Canvas& canvas, BaseMapLayer layer, const std::vector<Line>& lines) const
{
    std::vector<LinePath> builders;
    builders.reserve(lines.size());
    double margin = kMargin;
    for (const Line& line : lines) {
        margin = std::max(margin, line.pen.widthF());
        builders.emplace_back(canvas.rect, line.pen, kStep / canvas.devicePixelRatio);
    }
    const bool bRings = layer == BaseMapLayer::Land || layer == BaseMapLayer::CountryAreas;
    Each(canvas, layer, margin, [&](const LeafReader& reader, const UnitsToPixels& toPixel, std::uint32_t bit) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            if ((lines[i].wanted & bit) != 0)
                builders[i].Add(reader, toPixel, bRings);
    });
    for (std::size_t i = 0; i < lines.size(); ++i) {
        QPen solid = lines[i].pen;
        solid.setStyle(Qt::SolidLine);
        canvas.painter.strokePath(builders[i].Path(), solid);
    }
}

// Country colours run out over the coast and the water goes on top: so the two sources' different coasts never show.
void BaseMapPainter::PaintCountries(Canvas& canvas, const QPainterPath& land) const
{
    constexpr double kCoastGap = 9000 / kEquatorMetres; // At the equator, of the world.
    canvas.painter.fillRect(canvas.rect, canvas.palette.land);
    const double gap = kCoastGap * canvas.worldPixels, overlap = std::clamp(gap, 2.0, 60.0);
    std::vector<Line> coasts;
    std::vector<std::uint32_t> colors;
    for (int color = 0; color < kPoliticalColors; ++color) {
        const QColor& shown = canvas.palette.political.at(static_cast<std::size_t>(color));
        coasts.push_back({Bit(color), LinePen(shown, overlap)});
        colors.push_back(Bit(color));
    }
    Canvas coarse = canvas; // The exact line does not matter here.
    coarse.detailZoom -= 2.5;
    if (gap > 0.7)
        Stroke(coarse, BaseMapLayer::CountryAreas, coasts);
    const std::vector<QPainterPath> areas = Fill(canvas, BaseMapLayer::CountryAreas, colors);
    for (std::size_t i = 0; i < areas.size(); ++i)
        canvas.painter.fillPath(areas[i], canvas.palette.political.at(i));
    QPainterPath water;
    water.setFillRule(Qt::OddEvenFill);
    water.addRect(canvas.rect.adjusted(-kMargin, -kMargin, kMargin, kMargin));
    water.addPath(land);
    canvas.painter.fillPath(water, canvas.palette.water);
}

bool BaseMapPainter::PaintRelief(Canvas& canvas, const QPainterPath& land, const QPainterPath& inlets) const
{
    const double ratio = canvas.devicePixelRatio;
    const auto pixels = [ratio](double length) { return static_cast<int>(std::lround(length * ratio)); };
    const Relief::Pictures pictures =
        m_relief.Paint(canvas.left, canvas.top, canvas.worldPixels * ratio, pixels(canvas.rect.width()),
                       pixels(canvas.rect.height()), canvas.bDark);
    if (pictures.land.isNull())
        return false;
    const auto brush = [ratio](const QImage& picture) {
        QBrush made(picture);
        made.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
        return made;
    };
    canvas.painter.drawImage(canvas.rect, pictures.sea, QRectF(pictures.sea.rect()));
    canvas.painter.fillPath(land, brush(pictures.land));
    canvas.painter.fillPath(inlets, brush(pictures.sea));
    return true;
}

void BaseMapPainter::PaintGround(Canvas& canvas, MapStyle style) const
{
    const QPainterPath land = Fill(canvas, BaseMapLayer::Land, {kAll}).front();
    const QPainterPath inlets = Fill(canvas, BaseMapLayer::Inlets, {kAll}).front();
    if (InfoOf(style).land == MapStyleInfo::Land::Relief && PaintRelief(canvas, land, inlets))
        return;
    if (InfoOf(style).land == MapStyleInfo::Land::Countries) {
        PaintCountries(canvas, land);
    } else {
        canvas.painter.fillRect(canvas.rect, canvas.palette.water);
        canvas.painter.fillPath(land, canvas.palette.land);
    }
    canvas.painter.fillPath(inlets, canvas.palette.water);
}

void BaseMapPainter::PaintRivers(Canvas& canvas) const
{
    const double zoom = canvas.zoom;
    if (zoom < 3)
        return;
    std::vector<Line> lines;
    const auto add = [&](std::uint32_t wanted, double width) {
        if (width > 0.2)
            lines.push_back({wanted, LinePen(canvas.palette.river, width)});
    };
    add(Bit(4) | Bit(5) | Bit(8), Ramp(zoom, 7, 0.1, 11, 1.1));
    add(Bit(3), Ramp(zoom, 5, 0.1, 10, 1.4));
    add(Bit(2), Ramp(zoom, 4, 0.3, 10, 1.8));
    add(Bit(0) | Bit(1), Ramp(zoom, 3, 0.5, 10, 2.2));
    Stroke(canvas, BaseMapLayer::Rivers, lines);
}

void BaseMapPainter::PaintBorders(Canvas& canvas) const
{
    const double zoom = canvas.zoom;
    std::vector<Line> lines;
    const auto addDashed = [&](std::uint32_t wanted, QPen pen, const QList<qreal>& dashes) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(dashes);
        lines.push_back({wanted, pen});
    };
    const QColor& state = canvas.palette.stateBorder;
    if (zoom >= 6.5)
        addDashed(Bit(2), LinePen(state, 0.8), {4, 3});
    if (zoom >= 3.2)
        addDashed(Bit(1), LinePen(state, Ramp(zoom, 3, 0.7, 7, 1.0)), {5, 3});
    if (zoom >= 4)
        addDashed(Bit(3), LinePen(canvas.palette.border, 0.9), {3, 3});
    lines.push_back({Bit(0), LinePen(canvas.palette.border, Ramp(zoom, 1, 0.5, 7, 1.4))});
    Stroke(canvas, BaseMapLayer::Borders, lines);
}

void BaseMapPainter::PaintPart(Canvas& canvas, MapStyle style) const
{
    const double zoom = canvas.zoom;
    canvas.painter.setClipRect(canvas.rect, Qt::IntersectClip);
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(canvas, style);
    PaintRivers(canvas);
    Stroke(canvas, BaseMapLayer::Land, {{kAll, LinePen(canvas.palette.coast, Ramp(zoom, 2, 0.5, 8, 1.0))}});
    PaintBorders(canvas);
}

void BaseMapPainter::Paint(QPainter& painter, const BaseMapArea& area, MapStyle style, bool bDark) const
{
    if (area.width <= 0 || area.height <= 0 || !(area.worldPixels > 0))
        return;
    const bool bRaster = painter.paintEngine()->type() == QPaintEngine::Raster;
    const double side = bRaster ? kPart / area.devicePixelRatio : std::max(area.width, area.height);
    const double zoom = ZoomOf(area.worldPixels), ratio = area.devicePixelRatio;
    for (double y = 0; y < area.height; y += side) {
        for (double x = 0; x < area.width; x += side) {
            painter.save();
            painter.translate(x, y);
            Canvas canvas{painter,
                          area.left + x / area.worldPixels,
                          area.top + y / area.worldPixels,
                          area.worldPixels,
                          ratio,
                          QRectF(0, 0, std::min(side, area.width - x), std::min(side, area.height - y)),
                          PaletteFor(style, bDark),
                          bDark,
                          zoom,
                          zoom + std::log2(ratio)};
            PaintPart(canvas, style);
            painter.restore();
        }
    }
}

} // namespace ruvenmark
