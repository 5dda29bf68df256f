#include "app/program_settings.h"

#include "core/channel_state.h"
#include "platform/failure.h"
#include "platform/file_replacement.h"
#include "platform/map_model.h"
#include "platform/numbers.h"
#include "tracking/track_lists.h"

namespace ruvenmark {

std::unique_ptr<IByteStream> OpenLoad(IFiles& files, const ProgramOptions& options)
{
    return options.loadFile ? files.OpenStream(*options.loadFile) : nullptr;
}

ProgramSettings::ProgramSettings(IFiles& files, const ProgramOptions& options)
    : m_path(options.settingsFile.value_or(DefaultSettingsFile())), m_file(files, m_path), m_overlay(m_file),
      m_folder(options.folder.value_or(DefaultProgramFolder()))
{
    // One that was named and is there has to be readable; one that is not there is made at the end.
    if (options.settingsFile && !m_file.ReadFault().empty())
        throw Failure(m_file.ReadFault());
    MakeFolder(m_folder);
    if (!options.settingsFile)
        MakeFolder(FolderOf(m_path));
    if (!options.screenshot) // A picture is taken beside whatever runs, and changes nothing.
        m_lock.emplace(m_path);
    if (options.screenshot || IsElsewhere()) {
        m_file.KeepNothing();
    } else {
        RemoveLeftovers(m_folder);
        RemoveLeftovers(FolderOf(m_path));
    }
    if (options.bHeadless)
        m_overlay.SetForThisRun(Info(Setting::FLDelay).key,
                                "0"); // Nobody watches the map keep up; --set comes behind it.
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
