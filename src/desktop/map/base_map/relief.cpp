#include "desktop/map/base_map/relief.h"

#include "desktop/map/tiles/tile_image.h"
#include "platform/geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace ruvenmark {

namespace {

constexpr int kTile = 512;
constexpr int kAround = 12; // Heights around the area, so that neighbouring areas blur alike.
constexpr std::size_t kTilesKept = 24;
// Grey values of the source: the sea ends and the land begins between these.
constexpr double kSeaTop = 84, kLandBottom = 87;
// South of 60 degrees all land is ice, flat shelves too.
constexpr double kIceFrom = 0.7105, kIceBottom = 190;

struct Stop {
    double height;
    int red, green, blue;
};
using Ramp = std::array<QRgb, 256>;

template <std::size_t N>
Ramp MakeRamp(const std::array<Stop, N>& stops)
{
    Ramp ramp{};
    for (std::size_t i = 0; i < ramp.size(); ++i) {
        const auto height = static_cast<double>(i);
        std::size_t above = 1;
        while (above + 1 < N && stops[above].height < height)
            ++above;
        const Stop &a = stops[above - 1], &b = stops[above];
        const double t = std::clamp((height - a.height) / (b.height - a.height), 0.0, 1.0);
        const auto mix = [t](int from, int to) { return static_cast<int>(std::lround(from + t * (to - from))); };
        ramp[i] = qRgb(mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue));
    }
    return ramp;
}

Ramp LandRamp(bool bDark)
{
    constexpr std::array<Stop, 6> kLight{{{87, 0xD3, 0xE3, 0xC6},
                                          {112, 0xE4, 0xEB, 0xCF},
                                          {136, 0xF2, 0xEB, 0xD2},
                                          {160, 0xE9, 0xDA, 0xBD},
                                          {185, 0xDC, 0xCD, 0xB9},
                                          {207, 0xF7, 0xF6, 0xF4}}};
    constexpr std::array<Stop, 6> kDark{{{87, 0x27, 0x33, 0x2C},
                                         {112, 0x2E, 0x3A, 0x30},
                                         {136, 0x3B, 0x3E, 0x33},
                                         {160, 0x4A, 0x43, 0x38},
                                         {185, 0x57, 0x51, 0x4B},
                                         {207, 0x77, 0x78, 0x7B}}};
    return MakeRamp(bDark ? kDark : kLight);
}

Ramp SeaRamp(bool bDark)
{
    constexpr std::array<Stop, 4> kLight{
        {{18, 0x86, 0xB2, 0xD6}, {40, 0x9A, 0xC2, 0xE1}, {66, 0xB6, 0xD7, 0xEC}, {84, 0xCE, 0xE6, 0xF3}}};
    constexpr std::array<Stop, 4> kDark{
        {{18, 0x10, 0x1B, 0x2B}, {40, 0x15, 0x24, 0x37}, {66, 0x1C, 0x30, 0x47}, {84, 0x24, 0x3D, 0x57}}};
    return MakeRamp(bDark ? kDark : kLight);
}

// The first pixel after `at` that lies on another tile, at most `end`.
int Next(int at, int end)
{
    const int inTile = ((at % kTile) + kTile) % kTile;
    return std::min(end, at - inTile + kTile);
}

QRgb Lit(QRgb color, float shade)
{
    const auto parts = static_cast<int>(shade * 256);
    const auto channel = [parts](int value) { return std::clamp(value * parts / 256, 0, 255); };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

} // namespace

// The heights around an area at one level, and how brightly each is lit.
struct Relief::Window {
    int level = 1, left = 0, top = 0, columns = 0, rows = 0;
    std::vector<float> height, shade;

    float Side() const { return static_cast<float>(kTile << (level - 1)); }
    float Sample(const std::vector<float>& grid, double x, double y) const
    {
        const int column = std::clamp(static_cast<int>(x), 0, columns - 2);
        const int row = std::clamp(static_cast<int>(y), 0, rows - 2);
        const auto fx = static_cast<float>(x - column), fy = static_cast<float>(y - row);
        const float* at = grid.data() + static_cast<std::ptrdiff_t>(row) * columns + column;
        const float upper = at[0] + fx * (at[1] - at[0]);
        const float lower = at[columns] + fx * (at[columns + 1] - at[columns]);
        return upper + fy * (lower - upper);
    }
    void Light();
    void Soften(std::vector<float>& grid) const;
};

// A light blur, or the squares of the grid would show from close by.
void Relief::Window::Soften(std::vector<float>& grid) const
{
    const auto across = static_cast<std::size_t>(columns);
    for (const std::size_t step : {std::size_t{1}, across}) {
        const std::vector<float> from = grid;
        for (std::size_t at = step; at + step < grid.size(); ++at)
            grid[at] = (from[at - step] + 2 * from[at] + from[at + step]) / 4;
    }
}

void Relief::Window::Light()
{
    // Stronger where the ground is seen from closer up, so that hills stay visible.
    const float strength = 0.006F + 0.002F * static_cast<float>(level);
    const auto across = static_cast<std::size_t>(columns);
    shade.assign(height.size(), 1.0F);
    for (int row = 1; row + 1 < rows; ++row) {
        for (int column = 1; column + 1 < columns; ++column) {
            const std::size_t at = static_cast<std::size_t>(row) * across + static_cast<std::size_t>(column);
            const float* h = height.data() + at;
            const float *above = h - across, *below = h + across;
            const float east = above[1] + 2 * h[1] + below[1] - above[-1] - 2 * h[-1] - below[-1];
            const float south = below[-1] + 2 * below[0] + below[1] - above[-1] - 2 * above[0] - above[1];
            shade[at] = std::clamp(1.0F + strength * 0.25F * (east + south), 0.78F, 1.10F);
        }
    }
}

QImage Relief::Tile(std::uint32_t level, std::uint32_t column, std::uint32_t row) const
{
    const TileKey key{level, column, row};
    const std::lock_guard lock(m_mutex);
    if (const auto known = m_tiles.find(key); known != m_tiles.end())
        return known->second;
    const auto bytes = m_map.HeightTile(level, column, row);
    const QByteArray jpeg(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    QImage tile = TileImage(jpeg, QImage::Format_Grayscale8);
    if (tile.width() != kTile || tile.height() != kTile)
        tile = {};
    if (m_tiles.size() >= kTilesKept)
        m_tiles.clear();
    return m_tiles.emplace(key, tile).first->second;
}

// The part of the window that lies on one tile, to below right and bottom. Around the world sideways; beyond the north
// and south the edge goes on.
bool Relief::Copy(Window& window, int left, int top, int right, int bottom) const
{
    const int side = kTile << (window.level - 1);
    const int column = ((left % side) + side) % side, row = std::clamp(top, 0, side - 1);
    const QImage tile = Tile(static_cast<std::uint32_t>(window.level), static_cast<std::uint32_t>(column / kTile),
                             static_cast<std::uint32_t>(row / kTile));
    if (tile.isNull())
        return false;
    for (int y = top; y < bottom; ++y) {
        const uchar* from = tile.constScanLine(std::clamp(y, 0, side - 1) % kTile) + column % kTile;
        const auto at = static_cast<std::ptrdiff_t>(y - window.top) * window.columns + (left - window.left);
        std::transform(from, from + (right - left), window.height.begin() + at,
                       [](uchar v) { return static_cast<float>(v); });
    }
    return true;
}

Relief::Window Relief::Load(double left, double top, double worldPixels, int width, int height) const
{
    Window window;
    const int wanted = static_cast<int>(std::ceil(ZoomOf(worldPixels)));
    window.level = std::clamp(wanted, 1, static_cast<int>(BaseMap::kHeightLevels));
    const int side = kTile << (window.level - 1);
    window.left = static_cast<int>(std::floor(left * side)) - kAround;
    window.top = static_cast<int>(std::floor(top * side)) - kAround;
    window.columns = static_cast<int>(std::ceil(width / worldPixels * side)) + 2 * kAround + 2;
    window.rows = static_cast<int>(std::ceil(height / worldPixels * side)) + 2 * kAround + 2;
    window.height.assign(static_cast<std::size_t>(window.columns) * static_cast<std::size_t>(window.rows), 0);
    const int right = window.left + window.columns, bottom = window.top + window.rows;
    for (int y = window.top; y < bottom; y = Next(y, bottom)) {
        for (int x = window.left; x < right; x = Next(x, right))
            if (!Copy(window, x, y, Next(x, right), Next(y, bottom)))
                return {};
    }
    window.Light();
    for (double closer = worldPixels / side; closer > 1.2; closer /= 2.5) {
        window.Soften(window.shade);
        window.Soften(window.height);
    }
    return window;
}

Relief::Pictures Relief::Paint(double left, double top, double worldPixels, int width, int height, bool bDark) const
{
    const Window window = Load(left, top, worldPixels, width, height);
    if (window.height.empty())
        return {};
    const Ramp landRamp = LandRamp(bDark), seaRamp = SeaRamp(bDark);
    Pictures pictures{QImage(width, height, QImage::Format_RGB32), QImage(width, height, QImage::Format_RGB32)};
    const double step = window.Side() / worldPixels;
    // Heights lie at the middle of their squares.
    const double firstX = left * window.Side() - window.left - 0.5 + step / 2;
    const double firstY = top * window.Side() - window.top - 0.5 + step / 2;
    for (int y = 0; y < height; ++y) {
        auto* land = reinterpret_cast<QRgb*>(pictures.land.scanLine(y));
        auto* sea = reinterpret_cast<QRgb*>(pictures.sea.scanLine(y));
        const double landBottom = top + y / worldPixels > kIceFrom ? kIceBottom : kLandBottom;
        for (int x = 0; x < width; ++x) {
            const double gridX = firstX + x * step, gridY = firstY + y * step;
            const float value = window.Sample(window.height, gridX, gridY);
            const float shade = window.Sample(window.shade, gridX, gridY);
            const auto index = [&](double low, double high) {
                return static_cast<std::size_t>(std::clamp(static_cast<double>(value) + 0.5, low, high));
            };
            land[x] = Lit(landRamp[index(landBottom, 255)], shade);
            sea[x] = Lit(seaRamp[index(0, kSeaTop)], 1.0F + 0.35F * (shade - 1.0F));
        }
    }
    return pictures;
}

} // namespace ruvenmark
