// The built-in map: opening it, painting its squares, a frame of a moving map, names, finding places.
#include "desktop/map/base_map/place_index.h"
#include "desktop/map/base_map/square_painter.h"
#include "desktop/map/labels/place_labels.h"

#include <QGuiApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <array>

namespace ruvenmark {
namespace {

constexpr const char* kPath = RUVENMARK_SOURCE_DIR "/data/basemap/world.rvm";

struct Spot {
    const char* name;
    GeoPoint centre;
    double zoom;
};
constexpr std::array<Spot, 6> kSpots{{{"world", {20, 0}, 2},
                                      {"america", {39, -98}, 4},
                                      {"europe", {50, 12}, 5},
                                      {"britain", {53.5, -2.5}, 7},
                                      {"norway", {60.2, 5.4}, 9},
                                      {"new york", {40.72, -74}, 11}}};

ViewFrame FrameOf(const Spot& spot, int width, int height)
{
    return ViewFrame(MapView{spot.centre, spot.zoom, width, height});
}

void OpenMap(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(BaseMap::Open(kPath));
}

void PaintSquare(benchmark::State& state)
{
    const BaseMap map = BaseMap::Open(kPath);
    const Spot& spot = kSpots.at(static_cast<std::size_t>(state.range(0)));
    const ViewFrame frame = FrameOf(spot, 512, 512);
    const BaseMapPainter ground(map);
    QImage image(512, 512, QImage::Format_RGB32);
    for (auto _ : state) {
        QPainter painter(&image);
        ground.Paint(painter, {frame.left, frame.top, frame.world, 512, 512, 1}, static_cast<MapStyle>(state.range(1)),
                     false);
    }
    state.SetLabel(spot.name);
}

void FirstFrame(benchmark::State& state)
{
    const Spot& spot = kSpots.at(static_cast<std::size_t>(state.range(0)));
    QImage image(1280, 800, QImage::Format_RGB32);
    for (auto _ : state) {
        const BaseMap map = BaseMap::Open(kPath);
        SquarePainter tiles(map);
        PlaceLabels labels(map);
        LabelGrid grid;
        grid.Reset(1280, 800);
        QPainter painter(&image);
        tiles.Paint(painter, FrameOf(spot, 1280, 800), {MapStyle::Road, false, 1, true});
        labels.Place(FrameOf(spot, 1280, 800), grid, {});
        labels.Paint(painter);
    }
    state.SetLabel(spot.name);
}

// Seven pixels on, all squares and names ready.
void PanFrame(benchmark::State& state)
{
    const BaseMap map = BaseMap::Open(kPath);
    const Spot& spot = kSpots.at(static_cast<std::size_t>(state.range(0)));
    SquarePainter tiles(map);
    PlaceLabels labels(map);
    LabelGrid grid;
    QImage image(1280, 800, QImage::Format_RGB32);
    ViewFrame frame = FrameOf(spot, 1280, 800);
    int step = 0;
    for (auto _ : state) {
        frame.left += (++step % 20 < 10 ? 7 : -7) / frame.world;
        grid.Reset(1280, 800);
        QPainter painter(&image);
        tiles.Paint(painter, frame, {MapStyle::Road, false, 1, true});
        if (state.range(1) != 0)
            labels.Place(frame, grid, {});
        labels.Paint(painter);
    }
    state.SetLabel(std::string(spot.name) + (state.range(1) != 0 ? " with names" : ""));
}

void TypeAlong(benchmark::State& state)
{
    const BaseMap map = BaseMap::Open(kPath);
    const std::array<QString, 4> typed{"s", "sa", "san", "san f"};
    for (auto _ : state)
        benchmark::DoNotOptimize(FindPlaces(map, typed.at(static_cast<std::size_t>(state.range(0))), 20));
    state.SetLabel(typed.at(static_cast<std::size_t>(state.range(0))).toStdString());
}

BENCHMARK(OpenMap)->Unit(benchmark::kMillisecond);
BENCHMARK(PaintSquare)->ArgsProduct({{0, 1, 2, 3, 4, 5}, {0, 3, 4}})->Unit(benchmark::kMillisecond);
BENCHMARK(FirstFrame)->DenseRange(0, 5)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PanFrame)->ArgsProduct({{0, 2, 4, 5}, {0, 1}})->Unit(benchmark::kMillisecond);
BENCHMARK(TypeAlong)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace ruvenmark

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
