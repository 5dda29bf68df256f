#include "tracking/track_lists.h"

#include "core/main_window.h"
#include "platform/text.h"

namespace ruvenmark {

std::string TrackKey(std::string_view call)
{
    return ToUpper(Trim(call));
}

bool IsTracked(const ChannelState& state, std::string_view call)
{
    return !state.Tracked.IsEmpty() && state.Tracked.Contains(TrackKey(call));
}

void SetTrackList(ChannelState& state, std::string_view calls)
{
    state.Tracked.Clear();
    for (const std::string_view word : Words(calls)) {
        const std::string key = TrackKey(word);
        state.Tracked.Add(key, key); // A call that stands twice is one entry.
    }
}

std::string TrackListText(const ChannelState& state)
{
    std::string text;
    for (const auto& [key, call] : state.Tracked) {
        if (!text.empty())
            text += ' ';
        text += TrackKey(call);
    }
    return text;
}

void LoadTrackLists(MainWindow& main)
{
    for (ChannelState& state : main.channels)
        SetTrackList(state, main.stored.Text(Traits(state.channel).trackedSetting));
    main.tracking.bShowTrackLine = main.stored.Flag(Setting::ShowTrackLine);
}

void SaveTrackLists(MainWindow& main)
{
    for (ChannelState& state : main.channels) {
        main.stored.Set(Traits(state.channel).trackedSetting, TrackListText(state));
        state.Tracked.Clear();
    }
    main.stored.SetFlag(Setting::ShowTrackLine, main.tracking.bShowTrackLine);
}

double TravelDistance(MainWindow& main, double lat1, double lon1, double lat2, double lon2)
{
    Map& map = main.mpCtrl.RequireMap();
    return map.Distance(map.GetLocation(lat1, lon1), map.GetLocation(lat2, lon2));
}

} // namespace ruvenmark
