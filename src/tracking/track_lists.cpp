#include "tracking/track_lists.h"

#include "core/main_window.h"
#include "platform/text.h"

#include <cstddef>
#include <optional>
#include <utility>

namespace ruvenmark {

namespace {

constexpr char kQuote = '"';

// The quoted call that the text begins with, and what stands behind it; nothing where the quote is never closed.
std::optional<std::string> TakeQuoted(std::string_view& text)
{
    std::string call;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] != kQuote) {
            call += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == kQuote) {
            call += text[i++];
        } else {
            text.remove_prefix(i + 1);
            return call;
        }
    }
    return std::nullopt;
}

std::string TakeCall(std::string_view& text)
{
    if (text.front() == kQuote)
        if (auto call = TakeQuoted(text))
            return std::move(*call);
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    return std::string(word);
}

} // namespace

std::string TrackKey(std::string_view call)
{
    return ToUpper(Trim(call));
}

bool IsTracked(const ChannelState& state, std::string_view call)
{
    return !state.Tracked.IsEmpty() && state.Tracked.Contains(TrackKey(call));
}

// As it is, or in quotes, its own ones doubled, where its blanks or quotes would be read otherwise.
void AppendTrackCall(std::string& calls, std::string_view call)
{
    const std::string key = TrackKey(call);
    if (!calls.empty())
        calls += ' ';
    if (key.find_first_of(" \"") == std::string::npos) {
        calls += key;
        return;
    }
    calls += kQuote;
    for (const char c : key)
        calls.append(c == kQuote ? 2 : 1, c);
    calls += kQuote;
}

void SetTrackList(ChannelState& state, std::string_view calls)
{
    state.Tracked.Clear();
    for (std::string_view rest = Trim(calls); !rest.empty(); rest = Trim(rest)) {
        const std::string key = TrackKey(TakeCall(rest));
        if (!key.empty())
            state.Tracked.Add(key, key); // A call that stands twice is one entry.
    }
}

std::string TrackListText(const ChannelState& state)
{
    std::string text;
    for (const auto& [key, call] : state.Tracked)
        AppendTrackCall(text, call);
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
