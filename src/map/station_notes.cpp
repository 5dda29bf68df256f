#include "map/station_notes.h"

#include "core/main_window.h"
#include "map/marker_names.h"

namespace ruvenmark {

namespace {

const ChannelTraits& TraitsOfSource(std::uint8_t source)
{
    return kChannelTraits.at(std::size_t{source} - kOwnNote - 1);
}

} // namespace

std::optional<std::string> StationNotes::Note(std::uint8_t source, std::string_view name) const
{
    const ChannelTraits& traits = TraitsOfSource(source);
    if (!name.ends_with(traits.markerEnding))
        return std::nullopt;
    name.remove_suffix(traits.markerEnding.size());
    const Record* record = m_channels[Index(traits.channel)].Stations.Find(name);
    return record ? std::optional(MarkerNote(traits.word, *record)) : std::nullopt;
}

std::string_view StationNotes::Beginning(std::uint8_t source) const
{
    return TraitsOfSource(source).word;
}

void ForgetStation(MainWindow& main, Channel channel, std::string_view call)
{
    if (Map* map = main.mpCtrl.ActiveMap())
        if (auto pin = map->FindPushpin(MarkerName(channel, call)))
            pin->SettleNote();
    main.Of(channel).Stations.Remove(call);
}

void ForgetStations(MainWindow& main, Channel channel)
{
    if (Map* map = main.mpCtrl.ActiveMap())
        map->SettleNotes(NoteSourceOf(channel));
    main.Of(channel).Stations.Clear();
}

} // namespace ruvenmark
