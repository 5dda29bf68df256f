#include "app/headless.h"

#include "app/print_state.h"
#include "app/program_settings.h"
#include "core/bare_dialogs.h"
#include "core/lifecycle.h"
#include "core/main_window.h"
#include "devices/report_sources.h"
#include "links/station_files.h"
#include "platform/headless.h"

#include <ostream>

namespace ruvenmark {

namespace {

// Prints the boxes and keeps their texts.
class KeepingPrompts final : public IPrompts {
public:
    explicit KeepingPrompts(std::ostream& err) : m_prompts(err) {}

    void Message(std::string_view text) override
    {
        m_messages.emplace_back(text);
        m_prompts.Message(text);
    }
    bool AskYesNo(std::string_view text) override { return m_prompts.AskYesNo(text); }
    Answer AskYesNoCancel(std::string_view text) override { return m_prompts.AskYesNoCancel(text); }
    std::optional<std::string> OpenFile(std::string_view title, FileFilter filter) override
    {
        return m_prompts.OpenFile(title, filter);
    }
    std::optional<std::string> SaveFile(std::string_view title, FileFilter filter) override
    {
        return m_prompts.SaveFile(title, filter);
    }
    const std::vector<std::string>& Messages() const { return m_messages; }

private:
    HeadlessPrompts m_prompts;
    std::vector<std::string> m_messages;
};

} // namespace

int RunHeadless(const ProgramOptions& options, std::ostream& out, std::ostream& err)
{
    PosixFiles files;
    if (options.loadFile)
        files.ReadText(*options.loadFile); // A name that was typed wrong is told before anything starts.
    ProgramSettings settings(files, options);
    SystemClock clock;
    SilentSound sound;
    SystemSleep sleep;
    NoYield yield;
    KeepingPrompts prompts(err);
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
