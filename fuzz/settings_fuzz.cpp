// Any bytes as the settings of a whole program that starts and stops: it comes up, every key stands in the file
// afterwards, and a second run that changes nothing leaves the file as it is.

#include "core/settings.h"
#include "require.h"
#include "support/test_program.h"

#include <cstdint>
#include <string>

namespace {

using namespace ruvenmark;

constexpr const char* kPath = "/settings.ini";

void StartAndStop(MemoryFiles& files)
{
    FileSettingsStore store(files, kPath);
    TestProgram machine(false); // Lends all but its files and settings.
    MainWindow main(Services{.store = store,
                             .files = files,
                             .clock = machine.clock,
                             .sound = machine.sound,
                             .sleep = machine.sleep,
                             .yield = machine.yield,
                             .prompts = machine.prompts,
                             .notices = machine.notices,
                             .dialogs = machine.dialogs,
                             .desktop = machine.desktop,
                             .places = machine.places,
                             .wires = machine.wires,
                             .sources = machine.sources,
                             .gpsServers = machine.gpsServers,
                             .weatherServers = machine.weatherServers,
                             .programFolder = "/program"});
    StartMainWindow(main);
    Require(main.mpCtrl.ActiveMap() != nullptr);
    machine.sources.CreateFile(*main.links.sinks[Index(Channel::RF)])->ParseLine("N0CALL>APRS:=4903.50N/07201.75W>x");
    Require(StopMainWindow(main, MayAsk::No) == StopResult::Stopped);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    MemoryFiles files;
    files.texts[kPath] = "[Settings]\n" + std::string(data, data + size);
    StartAndStop(files);
    const std::string once = files.texts[kPath];
    FileSettingsStore store(files, kPath);
    for (std::size_t i = 0; i < kSettingCount; ++i)
        Require(store.Get(Info(static_cast<Setting>(i)).key, "\n") != "\n");
    const int writes = files.writes;
    StartAndStop(files);
    Require(files.texts[kPath] == once && files.writes == writes);
    return 0;
}
