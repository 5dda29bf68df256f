#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class IFiles;
struct MainWindow;

using TextRecord = std::vector<std::string>;
using TextTable = std::vector<TextRecord>;

// The lines of a text that are not blank and hold no NUL. Views of the text.
std::vector<std::string_view> UsedLines(std::string_view text);

// The whole file, and a text as a whole file. Raise Failure.
std::string ReadTextFile(IFiles& files, std::string_view path);
void WriteTextFile(IFiles& files, std::string_view text, std::string_view path);

// A record a line, its fields between delimiters. A file that cannot be read gives an empty table.
TextTable ReadRecords(IFiles& files, std::string_view path, std::string_view delimiter);
// CR LF between the lines and none at the end. Raises Failure.
void WriteRecords(IFiles& files, const TextTable& table, std::string_view path, std::string_view delimiter);

// The three lists of the server dialog and its fields. An entry is cut at its first colon; an empty list leaves its
// file as it is. A file that cannot be written is counted and keeps nothing else from being saved.
void LoadServerLists(MainWindow& main);
void SaveServerLists(MainWindow& main);

} // namespace ruvenmark
