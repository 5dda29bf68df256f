#pragma once

#include "contracts/report_source.h"
#include "core/desktop.h"
#include "core/forms.h"
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
    IReportSources& sources;
    std::string programFolder;
};

} // namespace ruvenmark
