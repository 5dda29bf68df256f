#include "app/program_settings.h"

#include "core/channel_state.h"
#include "platform/map_model.h"
#include "platform/numbers.h"
#include "tracking/track_lists.h"

namespace ruvenmark {

namespace {

// One that was named and is there has to be readable; one that is not there is made at the end.
std::string SettingsPath(IFiles& files, const ProgramOptions& options)
{
    if (!options.settingsFile)
        return DefaultSettingsFile();
    if (files.Exists(*options.settingsFile))
        files.ReadText(*options.settingsFile);
    return *options.settingsFile;
}

} // namespace

void RequireReadable(IFiles& files, const ProgramOptions& options)
{
    if (options.loadFile)
        files.ReadText(*options.loadFile);
}

ProgramSettings::ProgramSettings(IFiles& files, const ProgramOptions& options)
    : m_file(files, SettingsPath(files, options)), m_overlay(m_file),
      m_folder(options.folder.value_or(DefaultProgramFolder()))
{
    MakeFolder(m_folder);
    if (!options.settingsFile)
        MakeFolder(FolderOf(DefaultSettingsFile()));
    for (const auto& [key, value] : options.settings)
        m_overlay.SetForThisRun(key, value);
    const std::string_view regionKey = Info(Setting::Region).key;
    const bool bUnattended = options.bHeadless || options.screenshot;
    if (bUnattended && m_overlay.Get(regionKey, "").empty())
        m_overlay.SetForThisRun(regionKey,
                                ShortText(std::int64_t{kRegionNorthAmerica})); // The operator is asked later.
    if (!options.track.empty()) {
        const std::string_view key = Info(Traits(Channel::FL).trackedSetting).key;
        ChannelState spelled(Channel::FL); // As the list is written at stop, so that it stays out of the file.
        SetTrackList(spelled, m_overlay.Get(key, "") + " " + options.track);
        m_overlay.SetForThisRun(key, TrackListText(spelled));
    }
}

} // namespace ruvenmark
