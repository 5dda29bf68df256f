#include "map/marker_names.h"

#include "core/station_record.h"
#include "platform/map_model.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

namespace ruvenmark {

namespace {

constexpr std::size_t kPathCharacters = 22;
constexpr std::size_t kCommentCharacters = 25;
constexpr std::string_view kLineEnd = "\r\n";

// Text from the air is made valid before it stands beside our own.
void AppendShortened(std::string& note, std::string_view heard, std::size_t characters)
{
    if (!IsUtf8(heard))
        return AppendShortened(note, ShownText(heard), characters);
    const std::string_view shown = FirstCharacters(heard, characters);
    note += shown;
    if (shown.size() < heard.size())
        note += "...";
}

// The texts of a record by their fields, from one walk over it.
class FieldTexts {
public:
    explicit FieldTexts(const Record& record)
    {
        for (const auto& [field, text] : record)
            m_texts[static_cast<std::size_t>(field)] = text;
    }
    std::string_view operator[](Field field) const { return m_texts[static_cast<std::size_t>(field)]; }

private:
    std::array<std::string_view, kFieldNames.size()> m_texts;
};

struct Piece {
    Field field;
    std::string_view unit;
};

// A line behind the others, without the blanks at its ends; nothing where it is blank.
template <typename Write>
void AppendLine(std::string& note, const Write& write)
{
    const std::size_t end = note.size();
    note += kLineEnd;
    const std::size_t start = note.size();
    write();
    const std::string_view line = Trim(std::string_view(note).substr(start));
    if (line.empty())
        return note.resize(end);
    if (line.size() == note.size() - start)
        return;
    const auto blanks = static_cast<std::size_t>(line.data() - note.data()) - start;
    note.resize(start + blanks + line.size());
    note.erase(start, blanks);
}

// A line of those pieces that are given. Only the blanks at its ends are taken off, so a comma may stand last.
void AppendPieces(std::string& note, const FieldTexts& texts, std::initializer_list<Piece> pieces)
{
    const auto isGiven = [&](const Piece& piece) { return !texts[piece.field].empty(); };
    if (std::none_of(pieces.begin(), pieces.end(), isGiven))
        return;
    AppendLine(note, [&] {
        for (const auto& piece : pieces) {
            if (!isGiven(piece))
                continue;
            note += texts[piece.field];
            note += piece.unit;
        }
    });
}

} // namespace

std::string MarkerName(std::string_view channelWord, std::string_view call)
{
    if (const auto channel = ChannelOfWord(channelWord))
        return MarkerName(*channel, call);
    std::string name(call);
    if (channelWord.empty())
        return name;
    name += '(';
    name += channelWord;
    name += ')';
    return name;
}

std::string MarkerName(Channel channel, std::string_view call)
{
    std::string name(call);
    name += Traits(channel).markerEnding;
    return name;
}

std::string TrackPointName(std::string_view channelWord, std::string_view call)
{
    return MarkerName(channelWord, call) + kTrailMark;
}

std::string_view CallOfMarkerName(std::string_view name)
{
    return name.substr(0, name.find('('));
}

std::string MarkerNote(std::string_view channelWord, const Record& record)
{
    const FieldTexts texts(record);
    std::string note;
    note.reserve(160);
    note += channelWord;
    note += ", ";
    note += texts[Field::PositionReceived];
    note += kLineEnd;
    if (const auto path = texts[Field::PositionPath]; !path.empty()) {
        AppendShortened(note, path, kPathCharacters);
        note += kLineEnd;
    }
    note += texts[Field::Lat];
    note += "°, ";
    note += texts[Field::Lon];
    note += "°";
    AppendPieces(note, texts, {{Field::Alt, " ft, "}, {Field::Speed, " mph, "}, {Field::Course, "°"}});
    AppendPieces(
        note, texts,
        {{Field::Power, " watts, "}, {Field::Height, " ft, "}, {Field::Gain, " db, "}, {Field::Directivity, ""}});
    AppendLine(note, [&] { AppendShortened(note, texts[Field::Comment], kCommentCharacters); });
    return note;
}

} // namespace ruvenmark
