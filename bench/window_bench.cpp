// The program in its window, measured as its operator meets it: start to first paint, a file replay with the window
// shown, a tree of 100,000 stations, and what an idle window costs. Runs without a screen unless QT_QPA_PLATFORM says
// otherwise.

#include "desktop/map/widget/map_widget.h"
#include "desktop/tree/call_search.h"
#include "desktop/tree/tree_view.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "packet_text.h"
#include "window_program.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>

namespace {

using namespace ruvenmark;

using Program = WindowProgram<>;

// Moving stations over North America, one position report a line.
std::string MakeFile(const QTemporaryDir& folder, int lines, int stations)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> lat(26, 50), lon(-122, -70);
    std::string text;
    for (int i = 0; i < lines; ++i) {
        const int station = i % stations;
        text += packet_text::Call(station) + ">APRS,WIDE1-1:!" +
                packet_text::PlainPosition({lat(random), lon(random)}, "/>") +
                packet_text::CourseSpeed({1 + i % 360, i % 80}) + "line\r\n";
    }
    const std::string path = folder.filePath(QString::number(lines)).toStdString();
    PosixFiles().WriteText(text, path, FileKind::List);
    return path;
}

void MeasureReplay(Program& program, const QTemporaryDir& folder, int lines, int stations, bool bExpanded)
{
    const std::string path = MakeFile(folder, lines, stations);
    if (bExpanded)
        for (const char* key : {"FL", "FLPositions"})
            program.window.ShowInTree(*program.main.tvStationList.Find(key));
    const int paintsBefore = program.window.Map().Paints();
    const double cpuBefore = CpuSeconds();
    QElapsedTimer timer;
    timer.start();
    program.window.LoadFile(path);
    const auto replay = timer.elapsed();
    std::printf("replay %d lines, %d stations%s: %lld ms (%.0f ms of CPU), %d paints of the map\n", lines, stations,
                bExpanded ? ", folder open" : "", static_cast<long long>(replay), (CpuSeconds() - cpuBefore) * 1000,
                program.window.Map().Paints() - paintsBefore);
}

void MeasureTree(Program& program)
{
    TreeView& tree = program.window.StationTree();
    QElapsedTimer timer;
    timer.start();
    for (const char* key : {"FL", "FLPositions"})
        program.window.ShowInTree(*program.main.tvStationList.Find(key));
    tree.repaint();
    std::printf("tree of %zu nodes: expand and paint %lld ms", program.main.tvStationList.NodeCount(),
                static_cast<long long>(timer.restart()));
    constexpr int kSteps = 50;
    for (int step = 0; step < kSteps; ++step) {
        tree.verticalScrollBar()->setValue(tree.verticalScrollBar()->maximum() * step / kSteps);
        tree.repaint();
    }
    std::printf(", scroll %.1f ms a step", static_cast<double>(timer.restart()) / kSteps);
    FindByFirstLetters(program.main.tvStationList, "NOSUCHCALL", program.main.tvStationList.Selected(), true);
    std::printf(", search in vain %.1f ms\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
}

// What a person would feel: the longest that the window stands still while the list is opened, while reports come in
// and while it is sorted, and the longest that the map takes to paint meanwhile.
void MeasureStationList(Program& program)
{
    const auto settle = [](int milliseconds) {
        double worst = 0;
        QElapsedTimer whole;
        whole.start();
        while (whole.elapsed() < milliseconds) {
            const double before = CpuSeconds();
            QCoreApplication::processEvents();
            worst = std::max(worst, (CpuSeconds() - before) * 1000);
        }
        return worst;
    };
    settle(1000);
    const double begun = CpuSeconds();
    program.window.Run(MenuEntry::mnuViewStations);
    const double opened = (CpuSeconds() - begun) * 1000, filled = settle(3000);
    double reports = 0, maps = 0;
    const auto source = program.machine.sources.CreateFile(*program.main.links.sinks[Index(Channel::FL)]);
    for (int i = 0; i < 200; ++i) {
        for (int j = 0; j < 50; ++j)
            source->ParseLine(packet_text::Call((i * 50 + j) * 7) + ">APRS,WIDE1-1:!" +
                              packet_text::PlainPosition({40.0 + j * 0.01, -90.0 - i * 0.01}, "/>") + "moved");
        reports = std::max(reports, settle(20));
        if (i % 10 == 0) {
            const double before = CpuSeconds();
            program.window.Map().repaint();
            maps = std::max(maps, (CpuSeconds() - before) * 1000);
        }
    }
    auto* table = program.window.findChild<QTableView*>(QStringLiteral("lvStations"));
    double sorted = 0;
    for (const int column : {8, 0, 9, 4}) {
        const double before = CpuSeconds();
        table->sortByColumn(column, Qt::DescendingOrder);
        sorted = std::max({sorted, (CpuSeconds() - before) * 1000, settle(1000)});
    }
    const int rows = table->model()->rowCount();
    const double beforeFilter = CpuSeconds();
    program.window.findChild<QLineEdit*>(QStringLiteral("txtStationCalls"))->setText(QStringLiteral("1"));
    const double filtered = (CpuSeconds() - beforeFilter) * 1000;
    std::printf(
        "station list of %d rows: opened in %.1f ms, then at most %.1f ms at once, %.1f ms while 50 reports come "
        "20 ms apart, map frame at most %.1f ms, at most %.1f ms while it is sorted, filtered in %.1f ms\n",
        rows, opened, filled, reports, maps, sorted, filtered);
    program.window.Run(MenuEntry::mnuViewStations);
}

void MeasureIdle()
{
    constexpr int kSettleMs = 1000, kMs = 3000;
    RunFor(kSettleMs);
    const double before = CpuSeconds();
    RunFor(kMs);
    std::printf("idle: %.2f %% of a core\n", (CpuSeconds() - before) * 1e5 / kMs);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QElapsedTimer sinceStart;
    sinceStart.start();
    const double cpuAtStart = CpuSeconds();
    const QApplication application(argc, argv);
    Program program;
    StartMainWindow(program.main);
    while (program.window.Map().Paints() == 0)
        QCoreApplication::processEvents();
    std::printf("start to first paint: %lld ms (%.0f ms of CPU)\n", static_cast<long long>(sinceStart.elapsed()),
                (CpuSeconds() - cpuAtStart) * 1000);
    MeasureIdle();
    const QTemporaryDir folder;
    MeasureReplay(program, folder, 100000, 10000, false);
    MeasureReplay(program, folder, 100000, 10000, true);
    MeasureReplay(program, folder, 100001, 100000, true);
    MeasureTree(program);
    MeasureStationList(program);
    MeasureIdle();
    return 0;
}
