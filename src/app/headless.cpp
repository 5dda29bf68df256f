#include "app/headless.h"

#include "app/print_state.h"
#include "app/program_settings.h"
#include "core/bare_surface.h"
#include "core/main_window.h"
#include "devices/gps_server.h"
#include "devices/report_sources.h"
#include "devices/weather_server.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "links/station_files.h"
#include "platform/headless.h"

#include <memory>
#include <ostream>

namespace ruvenmark {

bool FlushOutput(std::ostream& out, std::ostream& err)
{
    out.flush();
    if (!out)
        PrintedNotices(err).Say("the output could not be written");
    return static_cast<bool>(out);
}

int RunHeadless(const ProgramOptions& options, std::ostream& out, std::ostream& err)
{
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
    BareDialogs dialogs;
    BareDesktop desktop;
    BareByteLinks wires;
    ReportSources sources{wires};
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
                     .wires = wires,
                     .sources = sources,
                     .gpsServers = gpsServers,
                     .weatherServers = weatherServers,
                     .programFolder = settings.Folder()});

    StartMainWindow(main, AutoConnect::No);
    if (load)
        LoadStationFile(main, *load);
    load.reset();
    const RunState state{main, sources.Counts(), prompts.Messages()};
    if (options.bJson)
        PrintJson(out, state);
    else
        PrintText(out, state, options.print);
    const bool bPrinted = FlushOutput(out, err);
    // Nobody is there to be asked, and the map was only wanted for the print.
    const StopResult result = StopMainWindow(main, MayAsk::No);
    return bPrinted && result == StopResult::Stopped ? kEndedWell : kCannotWrite;
}

} // namespace ruvenmark
