#include "map/marker_names.h"

#include "core/channel.h"
#include "core/station_record.h"
#include "platform/text.h"

#include <initializer_list>

namespace ruvenmark {

namespace {

constexpr std::size_t kPathCharacters = 22;
constexpr std::size_t kCommentCharacters = 25;
constexpr std::string_view kLineEnd = "\r\n";

// Text from the air is made valid before it stands beside our own.
void AppendShortened(std::string& note, std::string_view heard, std::size_t characters)
{
    const std::string valid = IsUtf8(heard) ? std::string() : ShownText(heard);
    const std::string_view text = valid.empty() ? heard : valid;
    const std::string_view shown = FirstCharacters(text, characters);
    note += shown;
    if (shown.size() < text.size())
        note += "...";
}

struct Piece {
    Field field;
    std::string_view unit;
};

// Nothing where the text is blank.
void AppendLine(std::string& note, std::string_view text)
{
    const std::string_view line = Trim(text);
    if (line.empty())
        return;
    note += kLineEnd;
    note += line;
}

// A line of those pieces that are given. Only the blanks at its ends are taken off, so a comma may stand last.
void AppendPieces(std::string& note, const Record& record, std::initializer_list<Piece> pieces)
{
    std::string line;
    for (const auto& piece : pieces) {
        const std::string_view value = record.Get(piece.field);
        if (value.empty())
            continue;
        line += value;
        line += piece.unit;
    }
    AppendLine(note, line);
}

} // namespace

std::string MarkerName(std::string_view channelWord, std::string_view call)
{
    std::string name(call);
    if (channelWord.empty())
        return name;
    name += '(';
    if (ChannelOfWord(channelWord))
        name += ToLower(channelWord.front());
    else
        name += channelWord;
    name += ')';
    return name;
}

std::string TrackPointName(std::string_view channelWord, std::string_view call)
{
    return MarkerName(channelWord, call) + "*";
}

std::string_view CallOfMarkerName(std::string_view name)
{
    return name.substr(0, name.find('('));
}

std::string MarkerNote(std::string_view channelWord, const Record& record)
{
    std::string note;
    note.reserve(160);
    note += channelWord;
    note += ", ";
    note += record.Get(Field::PositionReceived);
    note += kLineEnd;
    if (const auto path = record.Get(Field::PositionPath); !path.empty()) {
        AppendShortened(note, path, kPathCharacters);
        note += kLineEnd;
    }
    note += record.Get(Field::Lat);
    note += "°, ";
    note += record.Get(Field::Lon);
    note += "°";
    AppendPieces(note, record, {{Field::Alt, " ft, "}, {Field::Speed, " mph, "}, {Field::Course, "°"}});
    AppendPieces(
        note, record,
        {{Field::Power, " watts, "}, {Field::Height, " ft, "}, {Field::Gain, " db, "}, {Field::Directivity, ""}});
    std::string comment;
    AppendShortened(comment, record.Get(Field::Comment), kCommentCharacters);
    AppendLine(note, comment);
    return note;
}

} // namespace ruvenmark
