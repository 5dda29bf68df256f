#include "app/headless.h"

#include "app/print_state.h"
#include "app/program_settings.h"
#include "app/send_run.h"
#include "core/bare_surface.h"
#include "core/main_window.h"
#include "devices/gps_server.h"
#include "devices/report_sources.h"
#include "devices/weather_server.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "links/station_files.h"
#include "platform/headless.h"
#include "platform/text.h"
#ifdef RUVENMARK_DESKTOP
#include "app/link_run.h"
#include "ports/qt_byte_links.h"

#include <QCoreApplication>
#endif

#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace ruvenmark {

bool FlushOutput(std::ostream& out, std::ostream& err)
{
    out.flush();
    if (!out)
        PrintedNotices(err).Say("the output could not be written");
    return static_cast<bool>(out);
}

namespace {

#ifdef RUVENMARK_DESKTOP
// Sockets and serial ports are told of by an event loop, without a screen.
struct Wiring {
    explicit Wiring(const ProgramOptions& options)
    {
        if (!options.connect.empty())
            application = std::make_unique<QCoreApplication>(argc, argv.data());
    }

    std::string name{"ruvenmark"};
    int argc = 1;
    std::array<char*, 2> argv = {name.data(), nullptr};
    std::unique_ptr<QCoreApplication> application;
    QtByteLinks links;
};
#else
struct Wiring {
    explicit Wiring(const ProgramOptions& options)
    {
        if (!options.connect.empty())
            throw UsageError("this program was built without links");
    }
    BareByteLinks links;
};
bool RunLinks(MainWindow& /*main*/, const ProgramOptions& /*options*/, SendRun& /*sends*/, std::ostream& /*err*/)
{
    return false;
}
#endif

} // namespace

int RunHeadless(const ProgramOptions& options, std::ostream& out, std::ostream& err)
{
    Wiring wiring(options);
    PosixFiles files;
    std::unique_ptr<IByteStream> load = OpenLoad(files, options);
    ProgramSettings settings(files, options);
    SystemClock clock;
    SilentSound sound;
    SystemSleep sleep;
    NoYield yield;
    HeadlessPrompts prompts(err);
    PrintedNotices notices(err);
    if (settings.IsElsewhere())
        notices.Say("another program uses these settings: nothing will be saved");
    SendDialogs dialogs;
    BareDesktop desktop;
    BarePlaces places;
    IByteLinks& wires = wiring.links;
    ReportSources sources{wires};
    SendRun sends(sources.Events(), dialogs, prompts, err);
    GpsServers gpsServers{wires};
    WeatherServers weatherServers{wires};
    MainWindow main({.store = settings.Store(),
                     .files = files,
                     .clock = clock,
                     .sound = sound,
                     .sleep = sleep,
                     .yield = yield,
                     .prompts = prompts,
                     .notices = notices,
                     .dialogs = dialogs,
                     .desktop = desktop,
                     .places = places,
                     .wires = wires,
                     .sources = sources,
                     .gpsServers = gpsServers,
                     .weatherServers = weatherServers,
                     .programFolder = settings.Folder()});

    Subscription following;
    if (options.bFollow) // Flushed, as whoever reads it waits for it.
        following = main.links.LineHeard.Observe([&out](std::string_view line) {
            out << TerminalText(line) << '\n' << std::flush;
        });
    StartMainWindow(main, AutoConnect::No);
    if (load)
        LoadStationFile(main, *load);
    load.reset();
    const bool bConnected = options.connect.empty() || RunLinks(main, options, sends, err);
    const RunState state{main, sources.Counts(), prompts.Messages()};
    if (options.bJson)
        PrintJson(out, state);
    else
        PrintText(out, state, options.print);
    const bool bPrinted = FlushOutput(out, err);
    // Nobody is there to be asked, and the map was only wanted for the print.
    const StopResult result = StopMainWindow(main, MayAsk::No);
    return bPrinted && bConnected && result == StopResult::Stopped ? kEndedWell : kCannotWrite;
}

} // namespace ruvenmark
