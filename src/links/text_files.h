#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class IFiles;

using TextRecord = std::vector<std::string>;
using TextTable = std::vector<TextRecord>;

// The lines of a text that are not blank and hold no NUL. Views of the text.
std::vector<std::string_view> UsedLines(std::string_view text);

// A record a line, its fields between delimiters. A file that cannot be read gives an empty table.
TextTable ReadRecords(IFiles& files, std::string_view path, std::string_view delimiter);
// CR LF between the lines and none at the end. Raises Failure.
void WriteRecords(IFiles& files, const TextTable& table, std::string_view path, std::string_view delimiter);

} // namespace ruvenmark
