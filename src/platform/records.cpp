#include "platform/records.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/text.h"

namespace ruvenmark {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

TextRecord SplitRecord(std::string_view line, std::string_view delimiter)
{
    TextRecord record;
    for (;;) {
        const auto end = delimiter.empty() ? std::string_view::npos : line.find(delimiter);
        record.emplace_back(line.substr(0, end));
        if (end == std::string_view::npos)
            return record;
        line.remove_prefix(end + delimiter.size());
    }
}

std::string Join(const TextRecord& pieces, std::string_view delimiter)
{
    std::string text;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0)
            text += delimiter;
        text += pieces[i];
    }
    return text;
}

} // namespace

bool IsUsedLine(std::string_view line)
{
    return !line.empty() && line.find('\0') == std::string_view::npos;
}

TextTable SplitRecords(std::string_view text, std::string_view delimiter)
{
    TextTable table;
    for (const std::string_view line : Lines(text))
        if (IsUsedLine(line))
            table.push_back(SplitRecord(line, delimiter));
    return table;
}

TextTable ReadRecords(IFiles& files, std::string_view path, std::string_view delimiter)
{
    try {
        return SplitRecords(files.ReadText(path, FileKind::List), delimiter);
    } catch (const Failure&) {
        return {}; // The callers make no difference between a missing file and an empty one.
    }
}

void WriteRecords(IFiles& files, const TextTable& table, std::string_view path, std::string_view delimiter)
{
    TextRecord lines;
    for (const auto& record : table)
        lines.push_back(Join(record, delimiter));
    files.WriteText(Join(lines, kLineEnd), path, FileKind::List);
}

} // namespace ruvenmark
