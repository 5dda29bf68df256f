#pragma once

#include "bench_machine.h"
#include "desktop/adapters/qt_yield.h"
#include "desktop/data_path.h"
#include "desktop/icons/icon_set.h"
#include "desktop/main_window_view.h"
#include "mapfiles/base_map.h"

#include <QEventLoop>
#include <QTimer>

namespace ruvenmark {

// The program in its window of 1280 x 800 pixels.
template <typename Wires = BareByteLinks>
struct WindowProgram {
    WindowProgram() : baseMap(BaseMap::Open(DataPath(QStringLiteral("basemap/world.rvm")).toStdString()))
    {
        machine.store.Set("MainWidth", "19200");
        machine.store.Set("MainHeight", "12000");
        machine.store.Set("WindowSplit", "3600");
    }

    BenchMachine<QtYield, Wires> machine;
    IconSet icons;
    BaseMap baseMap;
    MainWindow main{machine.Lend()};
    MainWindowView window{main, icons, &baseMap};
};

inline void RunFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace ruvenmark
