#pragma once

#include "core/services.h"
#include "devices/gps_server.h"
#include "devices/report_sources.h"
#include "devices/weather_server.h"
#include "support/doubles.h"
#include "support/fake_byte_links.h"
#include "support/recording_desktop.h"

namespace ruvenmark {

// All of a machine and its operator but the dialogs. The region is chosen.
template <class Store, class Yield, class Wires = FakeByteLinks>
struct TestMachine {
    TestMachine() { store.Set("Region", "1"); }

    Services Lend(IDialogs& dialogs)
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
                .programFolder = "/program"};
    }

    Store store;
    MemoryFiles files;
    FakeClock clock;
    RecordingSound sound;
    RecordingSleep sleep;
    Yield yield;
    RecordingPrompts prompts;
    RecordingNotices notices;
    RecordingDesktop desktop;
    FakePlaces places;
    Wires wires;
    ReportSources sources{wires};
    GpsServers gpsServers{wires};
    WeatherServers weatherServers{wires};
};

} // namespace ruvenmark
