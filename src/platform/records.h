#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class IFiles;

using TextRecord = std::vector<std::string>;
using TextTable = std::vector<TextRecord>;

// Lines that are blank or hold a NUL are passed over in every file of lines.
bool IsUsedLine(std::string_view line);

// A record for each used line of the text, its fields between delimiters.
TextTable SplitRecords(std::string_view text, std::string_view delimiter);
// A file that cannot be read gives an empty table.
TextTable ReadRecords(IFiles& files, std::string_view path, std::string_view delimiter);
// CR LF between the lines and none at the end. Raises Failure.
void WriteRecords(IFiles& files, const TextTable& table, std::string_view path, std::string_view delimiter);

} // namespace ruvenmark
