#include "platform/records.h"
#include "support/doubles.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

// Any bytes are read as records; no line end, NUL or delimiter is left in a field, and what is written reads as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ruvenmark;
    const std::size_t length = size > 0 ? data[0] % 3U : 0; // Of the delimiter.
    const std::string input(data, data + size);
    const std::string delimiter = input.substr(0, length);

    MemoryFiles files;
    files.texts["file"] = input.substr(std::min(length, size));
    const TextTable table = ReadRecords(files, "file", delimiter);
    for (const TextRecord& record : table) {
        for (const std::string& field : record)
            if (field.find('\n') != std::string::npos || field.find('\0') != std::string::npos ||
                (!delimiter.empty() && field.find(delimiter) != std::string::npos))
                std::abort();
    }
    WriteRecords(files, table, "again", delimiter);
    const bool bPlain = delimiter.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
    const bool bOpenEnd = files.texts["again"].ends_with('\r'); // At the end of a file it counts as half a line end.
    if (bPlain && !bOpenEnd && ReadRecords(files, "again", delimiter) != table)
        std::abort();
    return 0;
}
