#pragma once

#include "app/options.h"
#include "platform/files.h"
#include "platform/settings_store.h"

#include <string>

namespace ruvenmark {

// Raises Failure for a file to load that cannot be read: a name that was typed wrong is told before anything starts.
void RequireReadable(IFiles& files, const ProgramOptions& options);

// The settings and the program folder that a command line names, or the user's own. Raises Failure where the folder
// cannot be made or the named settings file cannot be read.
class ProgramSettings {
public:
    ProgramSettings(IFiles& files, const ProgramOptions& options);

    ISettingsStore& Store() { return m_overlay; }
    const std::string& Folder() const { return m_folder; }

private:
    FileSettingsStore m_file;
    OverlaySettingsStore m_overlay;
    std::string m_folder;
};

} // namespace ruvenmark
