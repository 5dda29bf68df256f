#pragma once

#include "core/channel.h"

#include <string>
#include <string_view>

namespace ruvenmark {

class Record;

// The name of a station's marker: the call alone for an empty channel word, "CALL(r)", "CALL(t)" or "CALL(f)" for RF,
// TCP and FL, "CALL(word)" for any other word.
std::string MarkerName(std::string_view channelWord, std::string_view call);
std::string MarkerName(Channel channel, std::string_view call);

// The name of a marker that a moving tracked station left behind: the marker's name and "*".
std::string TrackPointName(std::string_view channelWord, std::string_view call);

// The call in a marker's name: what stands ahead of the first bracket.
std::string_view CallOfMarkerName(std::string_view name);

// Up to six lines, CR LF between them: channel and time, path, position, movement, station data, comment.
std::string MarkerNote(std::string_view channelWord, const Record& record);

} // namespace ruvenmark
