#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Text helpers. The locale is never asked: letters are the 26 of ASCII, blanks are the space character.
namespace ruvenmark {

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr char ToUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string ToUpper(std::string_view text);

// Without the blanks at both ends.
std::string_view Trim(std::string_view text);

// The pieces between the separators; an empty text has one empty piece. Views of the text.
std::vector<std::string_view> Split(std::string_view text, char separator);

// The non-empty pieces between blanks.
std::vector<std::string_view> Words(std::string_view text);

// The lines of a file's text: CR LF and LF both end a line. Views of the text.
std::vector<std::string_view> Lines(std::string_view text);

// Below, at or above 0 as the first text sorts before, with or after the second, letters' case ignored.
int CompareIgnoringCase(std::string_view a, std::string_view b);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

bool IsUtf8(std::string_view bytes);

// What a person or another program is shown: valid UTF-8 as it is, anything else read as Latin-1.
std::string ShownText(std::string_view bytes);
// The same as one line that cannot steer a terminal nor turn the order of what stands around it: every control
// character, U+007F to U+009F too, line separator and direction mark turns into a point.
std::string TerminalText(std::string_view bytes);
// JSON text with those that JSON lets stand as they are written as "\u009b".
std::string TerminalJson(std::string json);

// The first `count` characters: UTF-8 sequences where the text is UTF-8, bytes where it is not.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

} // namespace ruvenmark
