#include "app/headless.h"

#include "app/print_state.h"
#include "app/program_settings.h"
#include "core/bare_surface.h"
#include "core/main_window.h"
#include "devices/report_sources.h"
#include "lifecycle/lifecycle.h"
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
    BareDialogs dialogs;
    BareDesktop desktop;
    ReportSources sources;
    MainWindow main(
        {settings.Store(), files, clock, sound, sleep, yield, prompts, dialogs, desktop, sources, settings.Folder()});

    StartMainWindow(main);
    if (options.loadFile)
        LoadStationFile(main, *options.loadFile);
    const RunState state{main, sources.Counts(), prompts.Messages()};
    if (options.bJson)
        PrintJson(out, state);
    else
        PrintText(out, state, options.print);
    out.flush();
    if (Map* map = main.mpCtrl.ActiveMap())
        map->SetSaved(true); // Nobody is there to be asked, and the map was only wanted for the print.
    StopMainWindow(main);
    if (!settings.Flush())
        err << "ruvenmark: the settings could not be saved\n";
    return out ? 0 : 2;
}

} // namespace ruvenmark
