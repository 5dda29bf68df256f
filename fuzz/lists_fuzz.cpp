// Any bytes as the three lists of servers: a run that changes none leaves the files as they are; one that adds an entry
// keeps every entry that was read.

#include "require.h"
#include "support/test_program.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using namespace ruvenmark;

constexpr std::array<const char*, 3> kPaths = {"/program/servers.txt", "/program/ports.txt", "/program/filters.txt"};

std::vector<std::string> Entries(const Dictionary<std::string>& list)
{
    std::vector<std::string> entries;
    for (const auto& [key, value] : list) {
        Require(key == value && key.find_first_of(std::string_view("\n\0:", 3)) == std::string::npos);
        if (!key.empty()) // An empty entry makes an empty line, which no start reads.
            entries.push_back(key);
    }
    return entries;
}

std::vector<std::string> Run(MemoryFiles& files, const char* added)
{
    TestProgram program(false);
    program.files.texts = files.texts;
    StartMainWindow(program.main);
    ServerLists& lists = program.main.serverLists;
    if (added)
        for (auto* list : {&lists.ServerList, &lists.PortList, &lists.ServerFilterList})
            list->Set(added, added);
    std::vector<std::string> all;
    for (const auto* list : {&lists.ServerList, &lists.PortList, &lists.ServerFilterList})
        for (std::string& entry : Entries(*list))
            all.push_back(std::move(entry));
    Require(StopMainWindow(program.main) == StopResult::Stopped);
    files.texts = program.files.texts;
    return all;
}

} // namespace

// A file a third of the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    MemoryFiles files;
    for (std::size_t i = 0; i < kPaths.size(); ++i)
        files.texts[kPaths[i]] = input.substr(i * size / 3, (i + 1) * size / 3 - i * size / 3);
    const auto before = files.texts;
    Run(files, nullptr);
    Require(files.texts == before);
    const auto entries = Run(files, "added by a run"); // Last, so that no carriage return ends a file.
    Require(Run(files, nullptr) == entries);
    return 0;
}
