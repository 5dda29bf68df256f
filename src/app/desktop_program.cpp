#include "app/desktop_program.h"

#include "app/headless.h"
#include "app/logic_timers.h"
#include "app/options.h"
#include "app/program_settings.h"
#include "core/bare_surface.h"
#include "core/main_window.h"
#include "desktop/adapters/base_places.h"
#include "desktop/adapters/qt_desktop.h"
#include "desktop/adapters/qt_dialogs.h"
#include "desktop/adapters/qt_prompts.h"
#include "desktop/adapters/qt_yield.h"
#include "desktop/adapters/wave_sound.h"
#include "desktop/data_path.h"
#include "desktop/icons/icon_set.h"
#include "desktop/main_window_view.h"
#include "desktop/paint_only.h"
#include "desktop/screenshot.h"
#include "desktop/termination.h"
#include "desktop/theme.h"
#include "desktop/toolkit_messages.h"
#include "devices/gps_server.h"
#include "devices/report_sources.h"
#include "devices/weather_server.h"
#include "lifecycle/start.h"
#include "mapfiles/base_map.h"
#include "platform/failure.h"
#include "platform/headless.h"
#include "platform/program_name.h"
#include "platform/text.h"
#include "ports/qt_byte_links.h"
#include "ui/opened_file.h"

#include <QApplication>
#include <QFile>
#include <QTimer>

#include <iostream>
#include <memory>
#include <optional>

namespace ruvenmark {

namespace {

// Read when the application is made.
void SetEnvironment(const ProgramOptions& options)
{
    if (options.scale != 1)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(options.scale));
    if (options.screenshot)
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

// The program goes on without its map of the world.
std::optional<BaseMap> OpenBaseMap()
{
    try {
        return BaseMap::Open(DataPath(QStringLiteral("basemap/world.rvm")).toStdString());
    } catch (const Failure& failure) {
        std::cerr << kProgramWord << TerminalText(failure.what()) << '\n';
        return std::nullopt;
    }
}

// Everything that lives from start to stop, in the order in which it is made.
struct DesktopRun {
    explicit DesktopRun(const ProgramOptions& options)
        : settings(files, options), baseMap(OpenBaseMap()),
          places(Base(), DataPath(QStringLiteral("basemap/other_names.tsv"))), dialogs(icons),
          main({.store = settings.Store(),
                .files = files,
                .clock = clock,
                .sound = sound,
                .sleep = sleep,
                .yield = yield,
                .prompts = Prompts(options),
                .notices = notices,
                .dialogs = Dialogs(options),
                .desktop = desktop,
                .places = places,
                .wires = wires,
                .sources = sources,
                .gpsServers = gpsServers,
                .weatherServers = weatherServers,
                .programFolder = settings.Folder()}),
          window(main, icons, Base())
    {
        prompts.SetWindow(&window);
        dialogs.SetWindow(&window);
        desktop.SetWindow(&window, &window.Map());
    }

    const BaseMap* Base() const { return baseMap ? &*baseMap : nullptr; }

    // Before a picture nobody sits who could answer a box.
    IPrompts& Prompts(const ProgramOptions& options)
    {
        return options.screenshot ? static_cast<IPrompts&>(printedPrompts) : prompts;
    }
    IDialogs& Dialogs(const ProgramOptions& options)
    {
        return options.screenshot ? static_cast<IDialogs&>(bareDialogs) : dialogs;
    }

    PosixFiles files;
    ProgramSettings settings;
    SystemClock clock;
    WaveSound sound;
    SystemSleep sleep;
    QtYield yield;
    IconSet icons;
    std::optional<BaseMap> baseMap;
    BasePlaces places;
    QtPrompts prompts;
    HeadlessPrompts printedPrompts{std::cerr};
    PrintedNotices notices{std::cerr};
    QtDialogs dialogs;
    BareDialogs bareDialogs;
    QtDesktop desktop;
    QtByteLinks wires{PaintOnly(window)};
    ReportSources sources{wires};
    GpsServers gpsServers{wires};
    WeatherServers weatherServers{wires};
    MainWindow main;
    MainWindowView window;
};

void TakeScreenshot(DesktopRun& run, const ProgramOptions& options, IByteStream* load)
{
    const SizeOption size = options.size.value_or(SizeOption{});
    run.window.setFixedSize(size.width, size.height);
    if (load)
        run.window.LoadFile(*load);
    for (const char* key : {"FL", "FLPositions"})
        if (const TreeNode* node = run.main.tvStationList.Find(key))
            run.window.ShowInTree(*node);
    Map* map = run.main.mpCtrl.ActiveMap();
    if (map && options.view)
        map->SetView({options.view->lat, options.view->lon}, options.view->zoom);
    SaveScreenshot(run.window, {size.width, size.height}, QFile::decodeName(options.screenshot->c_str()));
}

// Whether to start where another program uses the same settings.
bool StartsBeside(DesktopRun& run)
{
    return !run.settings.IsElsewhere() ||
           run.prompts.AskYesNo("Another Ruvenmark uses these settings. Do you want to go on without saving any?");
}

} // namespace

int RunDesktop(int argc, char** argv, const ProgramOptions& options)
{
    PosixFiles files;
    const FileContent content = options.loadFile ? ContentOf(files, *options.loadFile) : FileContent::Packets;
    std::unique_ptr<IByteStream> load = content == FileContent::Packets ? OpenLoad(files, options) : nullptr;
    SetEnvironment(options);
    KeepToolkitQuiet();
    RequireDisplay();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ruvenmark"));
    QApplication::setDesktopFileName(QStringLiteral("org.ruvenmark.Ruvenmark"));
    QApplication::setQuitOnLastWindowClosed(false);
    if (options.bDark)
        UseDarkColors();

    DesktopRun run(options);
    std::optional<int> ended;
    QObject::connect(&run.window, &MainWindowView::Ended, [&](int status) {
        ended = status;
        QApplication::exit(status);
    });
    if (!StartsBeside(run))
        return kEndedWell;
    StartMainWindow(run.main, options.screenshot ? AutoConnect::No : AutoConnect::Yes);
    if (options.loadFile)
        OpenContent(run.main, content, *options.loadFile);
    if (options.screenshot) {
        TakeScreenshot(run, options, load.get());
        return kEndedWell;
    }
    if (load)
        QTimer::singleShot(0, &run.window, [&] {
            run.window.LoadFile(*load);
            load.reset();
        });
    const LogicTimers timers(run.main);
    const Termination termination([&] { run.window.CloseUnasked(); });
    return ended ? *ended : QApplication::exec();
}

} // namespace ruvenmark
