#pragma once

#include "core/bare_surface.h"
#include "core/main_window.h"
#include "devices/gps_server.h"
#include "devices/report_sources.h"
#include "devices/weather_server.h"
#include "platform/files.h"
#include "platform/headless.h"
#include "platform/settings_store.h"

#include <ctime>
#include <iostream>

namespace ruvenmark {

// Of this process: other work on a shared machine does not count.
inline double CpuSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// What the whole program needs of a machine, with nobody to answer and, unless Wires are real, nothing to hear.
// The region is chosen.
template <typename Yield, typename Wires = BareByteLinks>
struct BenchMachine {
    BenchMachine() { store.Set("Region", "1"); }

    Services Lend()
    {
        return {.store = store,
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
                .programFolder = "/tmp"};
    }

    MemorySettingsStore store;
    PosixFiles files;
    SystemClock clock;
    SilentSound sound;
    SystemSleep sleep;
    Yield yield;
    HeadlessPrompts prompts{std::cerr};
    PrintedNotices notices{std::cerr};
    BareDialogs dialogs;
    BareDesktop desktop;
    BarePlaces places;
    Wires wires;
    ReportSources sources{wires};
    GpsServers gpsServers{wires};
    WeatherServers weatherServers{wires};
};

} // namespace ruvenmark
