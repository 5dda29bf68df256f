#pragma once

#include "app/options.h"
#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/settings_store.h"

#include <memory>
#include <optional>
#include <string>

namespace ruvenmark {

// The file or pipe to load, opened once: a name that was typed wrong is told before anything starts. Null where none is
// named. Raises Failure.
std::unique_ptr<IByteStream> OpenLoad(IFiles& files, const ProgramOptions& options);

// The settings and the program folder that a command line names, or the user's own, for one program at a time. What a
// write that was cut off left beside them is cleared away. Raises Failure where the folder cannot be made or the named
// settings file cannot be read.
class ProgramSettings {
public:
    ProgramSettings(IFiles& files, const ProgramOptions& options);

    ISettingsStore& Store() { return m_overlay; }
    const std::string& Folder() const { return m_folder; }
    // Another program has the same settings: this one keeps nothing.
    bool IsElsewhere() const { return m_lock && m_lock->IsElsewhere(); }

private:
    std::string m_path;
    FileSettingsStore m_file;
    OverlaySettingsStore m_overlay;
    std::string m_folder;
    std::optional<FileLock> m_lock;
};

} // namespace ruvenmark
