// Live links in the shown window, over real sockets and serial ports: what the world's full feed costs, a flood of it,
// how many lines a second go through, and what links cost that say nothing. The processor time of the server, which is
// a thread of this program, is left out. `--quick`: shorter, for a look. Runs without a screen unless QT_QPA_PLATFORM
// says otherwise.

#include "app/logic_timers.h"
#include "desktop/map/widget/map_widget.h"
#include "feed_server.h"
#include "lifecycle/start.h"
#include "links/gps_link.h"
#include "links/server_link.h"
#include "links/tnc_link.h"
#include "links/weather_link.h"
#include "packet_text.h"
#include "ports/qt_byte_links.h"
#include "window_program.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <malloc.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ruvenmark;

constexpr int kStations = 10000;
constexpr const char* kLoopback = "127.0.0.1";

using Program = WindowProgram<QtByteLinks>;

// Stations over North America, each with one report at first; later every other report is of one that has moved some
// kilometres, and the rest are of those that stand.
class Reports {
public:
    Reports()
    {
        std::uniform_real_distribution<double> lat(26, 48), lon(-121, -71);
        for (int i = 0; i < kStations; ++i)
            m_places.push_back({lat(m_random), lon(m_random)});
    }

    std::vector<std::string> Everybody()
    {
        std::vector<std::string> lines;
        for (int station = 0; station < kStations; ++station)
            lines.push_back(Line(station));
        return lines;
    }

    std::vector<std::string> Next(int count)
    {
        std::normal_distribution<double> step(0, 0.03);
        std::vector<std::string> lines;
        for (int i = 0; i < count; ++i) {
            const int station = static_cast<int>(m_random() % kStations);
            packet_text::Place& place = m_places[static_cast<std::size_t>(station)];
            if (station % 2 != 0)
                place = {place.lat + step(m_random), place.lon + step(m_random)};
            lines.push_back(Line(station));
        }
        return lines;
    }

private:
    std::string Line(int station)
    {
        const packet_text::Place place = m_places[static_cast<std::size_t>(station)];
        const std::string head = packet_text::Call(station) + ">APRS,WIDE1-1,qAR,N0GATE:!";
        const int course = 1 + station % 360, knots = static_cast<int>(m_random() % 60);
        return station % 2 != 0 ? head + packet_text::PlainPosition(place, "/>") +
                                      packet_text::CourseSpeed({course, knots}) + "/A=000123 on the road\r\n"
                                : head + packet_text::PlainPosition(place, "/-") + "145.350 MHz home station\r\n";
    }

    std::mt19937 m_random{7};
    std::vector<packet_text::Place> m_places;
};

std::size_t HeapBytes()
{
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

double ThreadMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// How long the window let somebody wait who looks every few milliseconds, and how much of that was its own work.
class FrameWatch {
public:
    FrameWatch()
    {
        constexpr int kLookMs = 10;
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Look(); });
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.start(kLookMs);
        m_watch.start();
        m_workBefore = ThreadMs();
    }

    double WorstMs() const { return m_worst; }
    double WorstWorkMs() const { return m_worstWork; }

private:
    void Look()
    {
        const double work = ThreadMs();
        m_worst = std::max(m_worst, static_cast<double>(m_watch.nsecsElapsed()) / 1e6);
        m_worstWork = std::max(m_worstWork, work - m_workBefore);
        m_watch.restart();
        m_workBefore = work;
    }

    QTimer m_timer;
    QElapsedTimer m_watch;
    double m_workBefore = 0, m_worst = 0, m_worstWork = 0;
};

void ConnectServer(Program& program, FeedServer& server)
{
    program.main.frmTcp.sServerAddress = kLoopback;
    program.main.frmTcp.iServerPort = server.Port();
    ConnectServerLink(program.main);
    if (!program.main.links.bServerConnected)
        std::exit(1); // The notice told why.
    server.Accept();
}

struct Poured {
    std::size_t sent = 0, lost = 0;
    double seconds = 0, cpu = 0; // Without the server's.
    int paints = 0;
};

// Until the last line is heard; one that has not come a good while after it was sent is lost.
Poured Pour(Program& program, FeedServer& server, std::vector<std::string> lines, int perSecond)
{
    constexpr int kLateMs = 10000;
    Poured poured;
    poured.sent = lines.size();
    const auto wanted = program.main.serverStatus.lines + poured.sent;
    const double planned = perSecond > 0 ? static_cast<double>(poured.sent) / perSecond : 60;
    const int paintsBefore = program.window.Map().Paints();
    const double cpuBefore = CpuSeconds();
    QElapsedTimer watch;
    watch.start();
    server.Send(std::move(lines), perSecond);
    while (program.main.serverStatus.lines < wanted && watch.elapsed() < static_cast<int>(planned * 1e3) + kLateMs)
        RunFor(perSecond > 0 ? 250 : 10);
    poured.seconds = static_cast<double>(watch.nsecsElapsed()) / 1e9;
    poured.lost = wanted - program.main.serverStatus.lines;
    poured.cpu = CpuSeconds() - cpuBefore - server.Finish();
    poured.paints = program.window.Map().Paints() - paintsBefore;
    return poured;
}

void MeasureSteady(Program& program, FeedServer& server, Reports& reports, int seconds)
{
    constexpr int kPerSecond = 100;
    const Poured poured = Pour(program, server, reports.Next(kPerSecond * seconds), kPerSecond);
    std::printf("%d lines a second over %d stations in view for %d s: %.2f %% of a core, %d paints, %zu lines lost\n",
                kPerSecond, kStations, seconds, poured.cpu * 100 / poured.seconds, poured.paints, poured.lost);
}

void MeasureFlood(Program& program, FeedServer& server, Reports& reports, int seconds)
{
    constexpr int kPerSecond = 2000;
    std::vector<std::string> lines = reports.Next(kPerSecond * seconds);
    const auto& monitor = program.main.monitors.txtTCPData;
    const std::size_t heapBefore = HeapBytes() + lines.size() * sizeof(std::string), textBefore = monitor.Size();
    std::size_t sentBytes = 0;
    for (const std::string& line : lines)
        sentBytes += line.capacity() + 1;
    const FrameWatch frames;
    const Poured poured = Pour(program, server, std::move(lines), kPerSecond);
    RunFor(1000);
    malloc_trim(0);
    const auto grown = static_cast<double>(HeapBytes()) - static_cast<double>(heapBefore - sentBytes);
    const auto text = static_cast<double>(monitor.Size() - textBefore);
    std::printf("%d lines a second for %d s: %.1f %% of a core, %zu lines lost, longest wait for the window %.0f ms "
                "(%.0f ms of its own work), %d paints\n",
                kPerSecond, seconds, poured.cpu * 100 / poured.seconds, poured.lost, frames.WorstMs(),
                frames.WorstWorkMs(), poured.paints);
    std::printf("    memory: %+.2f MB, of which the monitor's log %.2f MB\n", grown / 1e6, text / 1e6);
}

void MeasureFastest(Program& program, FeedServer& server, Reports& reports, int count)
{
    const Poured poured = Pour(program, server, reports.Next(count), 0);
    const auto sent = static_cast<double>(poured.sent);
    std::printf("%d lines as fast as they go: %.0f lines a second (%.0f of processor time), %zu lost, %d paints\n",
                count, sent / poured.seconds, sent / poured.cpu, poured.lost, poured.paints);
}

// A device that is there and says nothing.
class SilentPort {
public:
    SilentPort() : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (grantpt(m_master.Number()) != 0 || unlockpt(m_master.Number()) != 0)
            std::exit(1);
        m_name = ptsname(m_master.Number());
    }
    const std::string& Name() const { return m_name; }

private:
    Descriptor m_master;
    std::string m_name;
};

void MeasureIdle(const char* what, int seconds)
{
    RunFor(3000);
    const double before = CpuSeconds();
    RunFor(seconds * 1000);
    std::printf("%s: %.3f %% of a core\n", what, (CpuSeconds() - before) * 100 / seconds);
}

// The air is reached through a TNC or through an engine, never both.
void MeasureIdleLinks(Program& program, int seconds)
{
    MainWindow& main = program.main;
    MeasureIdle("idle, the server alone connected", seconds);
    const SilentPort tnc, gps, weather;
    main.frmGps.sGPSPort = gps.Name();
    main.frmGps.bConnect = true;
    ConnectGps(main);
    main.frmWx.sWxPort = weather.Name();
    main.frmWx.lWxBaud = 2400;
    ConnectWx(main);
    main.commDialog.sSerialPort = tnc.Name();
    main.commDialog.lLastBaudRate = 9600;
    ConnectSerialTnc(main);
    MeasureIdle("idle, TNC, server, GPS and weather station connected", seconds);
    FeedServer engine;
    main.commDialog.sSocketAddress = kLoopback;
    main.commDialog.iSocketPort = engine.Port();
    ConnectAgw(main);
    engine.Accept();
    RunFor(100);
    if (!main.links.bSocketConnected || !main.links.bServerConnected || !main.links.bGpsConnected ||
        !main.links.bWxConnected)
        std::puts("a link is missing");
    MeasureIdle("idle, AGW engine, server, GPS and weather station connected", seconds);
    main.links.aprs.reset();
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool bQuick = argc > 1 && std::string_view(argv[1]) == "--quick";
    const QApplication application(argc, argv);
    FeedServer server;
    Program program;
    StartMainWindow(program.main);
    const LogicTimers timers(program.main);
    program.main.mpCtrl.RequireMap().SetView({38, -96}, 4.6);
    ConnectServer(program, server);
    Reports reports;
    Pour(program, server, reports.Everybody(), 0);
    RunFor(2000);
    std::printf("%zu markers\n", program.main.mpCtrl.RequireMap().Pins().Count());
    MeasureSteady(program, server, reports, bQuick ? 8 : 30);
    MeasureFlood(program, server, reports, bQuick ? 8 : 60);
    MeasureFastest(program, server, reports, bQuick ? 200000 : 1000000);
    MeasureIdleLinks(program, bQuick ? 5 : 15);
    program.main.links.aprstcp.reset();
    return 0;
}
