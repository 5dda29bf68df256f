#include "app/desktop_program.h"

#include "app/options.h"
#include "app/program_settings.h"
#include "core/bare_surface.h"
#include "core/main_window.h"
#include "desktop/data_path.h"
#include "desktop/icons/icon_set.h"
#include "desktop/main_window_view.h"
#include "desktop/map/base_map.h"
#include "desktop/screenshot.h"
#include "desktop/services/base_places.h"
#include "desktop/services/qt_desktop.h"
#include "desktop/services/qt_dialogs.h"
#include "desktop/services/qt_prompts.h"
#include "desktop/services/qt_yield.h"
#include "desktop/services/termination.h"
#include "desktop/services/wave_sound.h"
#include "desktop/theme.h"
#include "devices/report_sources.h"
#include "lifecycle/lifecycle.h"
#include "platform/failure.h"
#include "platform/headless.h"

#include <QApplication>
#include <QFile>
#include <QTimer>

#include <iostream>
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
        return BaseMap::Open(DataPath(QStringLiteral("basemap/world.rvm")));
    } catch (const Failure& failure) {
        std::cerr << "ruvenmark: " << failure.what() << '\n';
        return std::nullopt;
    }
}

// Everything that lives from start to stop, in the order in which it is made.
struct Program {
    explicit Program(const ProgramOptions& options)
        : settings(files, options), baseMap(OpenBaseMap()), places(Base()), dialogs(icons, places),
          main({settings.Store(), files, clock, sound, sleep, yield, Prompts(options), Dialogs(options), desktop,
                sources, settings.Folder()}),
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
    QtDialogs dialogs;
    BareDialogs bareDialogs;
    QtDesktop desktop;
    ReportSources sources;
    MainWindow main;
    MainWindowView window;
};

void TakeScreenshot(Program& program, const ProgramOptions& options)
{
    const SizeOption size = options.size.value_or(SizeOption{});
    program.window.resize(size.width, size.height);
    if (options.loadFile)
        program.window.LoadFile(*options.loadFile);
    for (const char* key : {"FL", "FLPositions"})
        if (const TreeNode* node = program.main.tvStationList.Find(key))
            program.window.ShowInTree(*node);
    Map* map = program.main.mpCtrl.ActiveMap();
    if (map && options.view)
        map->SetView({options.view->lat, options.view->lon}, options.view->zoom);
    SaveScreenshot(program.window, {size.width, size.height}, QFile::decodeName(options.screenshot->c_str()));
}

} // namespace

int RunDesktop(int argc, char** argv, const ProgramOptions& options)
{
    PosixFiles files;
    RequireReadable(files, options);
    SetEnvironment(options);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ruvenmark"));
    QApplication::setDesktopFileName(QStringLiteral("org.ruvenmark.Ruvenmark"));
    QApplication::setQuitOnLastWindowClosed(false);
    if (options.bDark)
        UseDarkColors();

    Program program(options);
    StartMainWindow(program.main);
    if (options.screenshot) {
        TakeScreenshot(program, options);
        return 0;
    }
    if (options.loadFile)
        QTimer::singleShot(0, &program.window, [&] { program.window.LoadFile(*options.loadFile); });
    const Termination termination([&] { program.window.CloseUnasked(); });
    const int status = QApplication::exec();
    if (!program.settings.Flush())
        std::cerr << "ruvenmark: the settings could not be saved\n";
    return status;
}

} // namespace ruvenmark
