#include "app/headless.h"

#include "app/print_state.h"
#include "app/program_settings.h"
#include "core/bare_surface.h"
#include "core/main_window.h"
#include "devices/report_sources.h"
#include "lifecycle/start.h"
#include "lifecycle/stop.h"
#include "links/station_files.h"
#include "platform/headless.h"

#include <ostream>

namespace ruvenmark {

int RunHeadless(const ProgramOptions& options, std::ostream& out, std::ostream& err)
{
    PosixFiles files;
    RequireReadable(files, options);
    ProgramSettings settings(files, options);
    SystemClock clock;
    SilentSound sound;
    SystemSleep sleep;
    NoYield yield;
    HeadlessPrompts prompts(err);
    PrintedNotices notices(err);
    BareDialogs dialogs;
    BareDesktop desktop;
    ReportSources sources;
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
                     .sources = sources,
                     .programFolder = settings.Folder()});

    StartMainWindow(main);
    if (options.loadFile)
        LoadStationFile(main, *options.loadFile);
    const RunState state{main, sources.Counts(), prompts.Messages()};
    if (options.bJson)
        PrintJson(out, state);
    else
        PrintText(out, state, options.print);
    out.flush();
    // Nobody is there to be asked, and the map was only wanted for the print.
    const StopResult result = StopMainWindow(main, MayAsk::No);
    if (!out) {
        notices.Say("the output could not be written");
        return 1;
    }
    return result == StopResult::Stopped ? 0 : 1;
}

} // namespace ruvenmark
