#pragma once

#include "core/channel.h"
#include "core/station_record.h"
#include "platform/dictionary.h"
#include "platform/map_model.h"
#include "tracking/report_filter.h"

#include <string>
#include <vector>

namespace ruvenmark {

// What one channel knows. "Call" is the call as reported; a track key is the call trimmed and upper-cased.
struct ChannelState {
    explicit ChannelState(Channel ofChannel) : channel(ofChannel) {}

    Channel channel;
    Dictionary<Record> Stations;                   // By call.
    Dictionary<double> StationRanges;              // By call; miles.
    Dictionary<Shape> RangeCircles;                // By call.
    Dictionary<std::string> Tracked;               // By track key, which is the value too.
    Dictionary<bool> TrackVisible;                 // By track key; a station that is not in it counts as shown.
    Dictionary<std::vector<Pushpin>> TrackMarkers; // By call: the markers left behind.
    Dictionary<std::vector<Shape>> TrackLines;     // By call.
    ReportFilter Filter;
    bool bShowUnknown = false; // Packets that could not be decoded are kept.
};

} // namespace ruvenmark
