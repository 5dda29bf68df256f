#pragma once

#include "core/channel.h"

#include <string>
#include <string_view>

namespace ruvenmark {

struct ChannelState;
struct MainWindow;

// Trimmed and upper-cased: how the track lists know a call.
std::string TrackKey(std::string_view call);

// Whether the call, trimmed and upper-cased, is on the channel's track list.
bool IsTracked(const ChannelState& state, std::string_view call);

// Puts a call behind the others of such a text as the next function reads.
void AppendTrackCall(std::string& calls, std::string_view call);
// Empties the list and adds the calls that stand in the text, blanks between them; a name with a blank stands in
// quotes.
void SetTrackList(ChannelState& state, std::string_view calls);
// The list as such a text.
std::string TrackListText(const ChannelState& state);

void LoadTrackLists(MainWindow& main);
void SaveTrackLists(MainWindow& main);

// Miles along the great circle. Raises Failure.
double TravelDistance(MainWindow& main, double lat1, double lon1, double lat2, double lon2);

} // namespace ruvenmark
