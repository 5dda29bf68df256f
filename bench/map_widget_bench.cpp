// Time for one frame of the map window while it is moved and zoomed, painted in software at 1280 x 800 with all names
// on. The bar: 30 ms a frame with 100,000 markers in view.
#include "desktop/icons/icon_set.h"
#include "desktop/map/widget/map_widget.h"
#include "mapfiles/base_map.h"
#include "platform/files.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <random>
#include <vector>

namespace ruvenmark {
namespace {

constexpr int kFrames = 41;

struct Times {
    double median = 0, worst = 0; // Milliseconds.
    double work = 0;              // Median of the painting thread's own time: what others do on the machine left out.
    double worstWork = 0;
};

double ThreadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

Times Measure(MapWidget& widget, const std::function<void(int)>& move)
{
    std::vector<double> times, work;
    for (int i = 0; i < kFrames; ++i) {
        QElapsedTimer watch;
        watch.start();
        const double before = ThreadMilliseconds();
        move(i);
        widget.repaint();
        work.push_back(ThreadMilliseconds() - before);
        times.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
        QApplication::processEvents();
    }
    return {Median(times), *std::max_element(times.begin(), times.end()), Median(work),
            *std::max_element(work.begin(), work.end())};
}

// Every marker lies in the first view: half of them around towns, half anywhere.
void AddMarkers(Map& map, int count, std::mt19937& random)
{
    std::uniform_real_distribution<double> lat(26, 48), lon(-122, -70), share(0, 1);
    std::normal_distribution<double> near(0, 0.7);
    std::vector<GeoPoint> towns;
    towns.reserve(60);
    for (int i = 0; i < 60; ++i)
        towns.push_back({lat(random), lon(random)});
    for (int i = map.RecordCount(); i < count; ++i) {
        const GeoPoint town = towns[random() % towns.size()];
        const bool bTown = share(random) < 0.5;
        const double y = bTown ? town.lat + near(random) : lat(random),
                     x = bTown ? town.lon + near(random) : lon(random);
        Pushpin pin = map.AddPushpin(map.GetLocation(y, x), "K" + std::to_string(i) + "(RF)");
        pin.SetSymbol(static_cast<std::int16_t>(79 + i % 20));
        pin.SetBalloonState(1);
    }
}

void AddTrails(Map& map, int count, std::mt19937& random)
{
    std::uniform_real_distribution<double> lat(26, 48), lon(-122, -70);
    std::normal_distribution<double> step(0, 0.15);
    for (int i = 0; i < count / 20; ++i) {
        GeoPoint at{lat(random), lon(random)};
        for (int j = 0; j < 20; ++j) {
            const GeoPoint next{at.lat + step(random), at.lon + step(random)};
            Shape line = map.AddLine(map.GetLocation(at.lat, at.lon), map.GetLocation(next.lat, next.lon));
            line.SetWeight(2);
            line.SetEndArrowhead(true);
            at = next;
        }
    }
}

void Report(MapWidget& widget, Map& map, const char* what)
{
    const Times pan = Measure(widget, [&](int i) { widget.Mover().PanBy({i % 2 != 0 ? 7.0 : 5.0, i % 3 - 1.0}); });
    const Times zoom = Measure(widget, [&](int i) {
        widget.Mover().ZoomAbout({500, 300}, (i / 10) % 2 != 0 ? -0.1 : 0.1);
    });
    const auto print = [&](const char* move, const Times& times) {
        std::printf("%-30s%-5s%7.1f ms (worst %6.1f), work %6.1f ms (worst %6.1f)\n", what, move, times.median,
                    times.worst, times.work, times.worstWork);
    };
    print("pan", pan);
    print("zoom", zoom);
    std::size_t inView = 0;
    for (const MarkerItem& item : widget.Scene().Markers().Items())
        inView += item.count;
    std::printf("%-35s%zu in view, %zu pictures, %zu names, %zu lines\n", "", inView,
                widget.Scene().Markers().Items().size(), widget.Scene().Labels().Names().size(),
                widget.Scene().Shapes().Lines().size());
    map.SetView({38, -96}, 4.6);
    QApplication::processEvents();
}

int Run()
{
    PosixFiles files;
    MapControl control(files);
    control.NewMap(kRegionNorthAmerica);
    Map& map = control.RequireMap();
    IconSet icons;
    const BaseMap base = BaseMap::Open(RUVENMARK_SOURCE_DIR "/data/basemap/world.rvm");
    const MapSelection selection;
    MapWidget widget(control, icons, &base, selection);
    widget.resize(1280, 800);
    widget.show();
    map.SetView({38, -96}, 4.6);
    std::mt19937 random(42);
    widget.Picture({1280, 800}, 1); // The ground is painted before the clock runs.
    Report(widget, map, "no markers");
    for (const int count : {10000, 100000, 1000000}) {
        AddMarkers(map, count, random);
        Report(widget, map, (std::to_string(count) + " markers").c_str());
    }
    AddTrails(map, 100000, random);
    Report(widget, map, "the same, 100000 trail lines");
    return 0;
}

} // namespace
} // namespace ruvenmark

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return ruvenmark::Run();
}
