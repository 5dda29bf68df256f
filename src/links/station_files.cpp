#include "links/station_files.h"

#include "core/main_window.h"
#include "intake/station_store.h"
#include "links/import_form_rules.h"
#include "links/text_files.h"
#include "platform/failure.h"
#include "platform/text.h"

#include <cstddef>
#include <string>

namespace ruvenmark {

namespace {

// Parses the lines until they end or the load is stopped. The last index is told before the first line. The window may
// have been worked on by anyone, and the source dropped, whenever events were let in.
void ReplayLines(MainWindow& main, std::string_view text, std::ptrdiff_t& last)
{
    const auto lines = UsedLines(text);
    last = static_cast<std::ptrdiff_t>(lines.size()) - 1;
    main.aprsfl = main.services.sources.CreateFile(*main.sinks[Index(Channel::FL)]);
    main.FileLoading = true;
    main.sbStatusBar.ShowProgress();
    main.sbStatusBar.SetProgress(0);
    for (std::ptrdiff_t i = 0; i <= last && main.FileLoading && main.aprsfl; ++i) {
        main.aprsfl->ParseLine(Trim(lines[static_cast<std::size_t>(i)]));
        if (last == 0)
            throw Failure("the progress of a single line cannot be told");
        main.sbStatusBar.SetProgress(static_cast<int>(i * 100 / last));
        main.services.yield.ProcessPending();
        if (main.FileLoading && main.frmImport.iFLDelay > 0)
            main.services.sleep.SleepMs(main.frmImport.iFLDelay);
    }
}

} // namespace

void LoadStationFile(MainWindow& main, std::string_view path)
{
    // A root that stands from an earlier load stays, with all it holds.
    if (!main.tvStationList.Find(Traits(Channel::FL).word))
        AddChannelTree(main.tvStationList, Channel::FL);
    std::ptrdiff_t last = 0;
    const bool bWhole = Attempt(main.abandoned, "LoadStationFile", [&] {
        const std::string text = main.services.files.ReadText(path);
        ReplayLines(main, text, last);
    });
    main.aprsfl.reset();
    main.FileLoading = false;
    main.sbStatusBar.SetProgress(0);
    main.sbStatusBar.HideProgress();
    if (!bWhole || last == 0)
        main.services.prompts.Message("Stations load failed!");
}

void mnuImportStations_Click(MainWindow& main)
{
    if (main.FileLoading) {
        main.FileLoading = false;
        return;
    }
    const auto path = main.services.prompts.OpenFile("Open", {"Station Files (*.*)", "*.*"});
    if (!path || path->empty())
        return;
    frmImport_Load(main.frmImport);
    main.services.dialogs.Run(Form::frmImport, main);
    if (main.frmImport.iFLDelay >= 0)
        LoadStationFile(main, *path);
}

void mnuLoadStations_Click(MainWindow& main)
{
    mnuImportStations_Click(main);
}

} // namespace ruvenmark
