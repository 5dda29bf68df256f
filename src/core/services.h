#pragma once

#include "contracts/byte_link.h"
#include "contracts/gps_server.h"
#include "contracts/report_source.h"
#include "contracts/weather_server.h"
#include "core/desktop.h"
#include "core/forms.h"
#include "core/place_search.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/settings_store.h"
#include "platform/sound.h"
#include "platform/waiting.h"

#include <string>

namespace ruvenmark {

// The platform behind the logic, lent by main() for the whole run.
struct Services {
    ISettingsStore& store;
    IFiles& files;
    IClock& clock;
    ISound& sound;
    ISleep& sleep;
    IYield& yield;
    IPrompts& prompts;
    INotices& notices;
    IDialogs& dialogs;
    IDesktop& desktop;
    const IPlaceSearch& places;
    IByteLinks& wires; // The dialogs of the links ask for the ports of this machine.
    IReportSources& sources;
    IGpsServers& gpsServers;
    IWeatherServers& weatherServers;
    std::string programFolder;
};

} // namespace ruvenmark
