// Every line of real logs, cut at every length: of what a broken link leaves of a packet nothing may be read behind its
// end. The logs (*.log) lie in the folder that RUVENMARK_LOGS names; they are not part of the project.
//
//     RUVENMARK_LOGS=FOLDER build/fuzz/fuzz/decoder_cuts [EVERY]
//
// takes every line, or with a number every so many-th.

#include "check_line.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <vector>

namespace {

using ruvenmark::fuzz::CheckLine;

constexpr int kWrongUse = 2;
constexpr std::uint64_t kProgress = 10000; // Lines.

// In a block of exactly the text's size, so that a sanitizer sees any look behind its end.
void CheckExactly(std::string_view text)
{
    const auto block = std::make_unique<char[]>(text.size());
    std::copy(text.begin(), text.end(), block.get());
    CheckLine({block.get(), text.size()});
}

void CheckCuts(const std::string& line)
{
    const std::size_t payload = std::min(line.find(':'), line.size() - 1) + 1;
    for (std::size_t size = 0; size <= line.size(); ++size) {
        CheckLine(std::string_view(line).substr(0, size)); // What was cut off still lies behind it.
        CheckExactly(std::string_view(line).substr(0, size));
        // The payload cut at its front: the same bytes at places where others are expected.
        if (size >= payload)
            CheckExactly(line.substr(0, payload) + line.substr(size));
    }
}

std::uint64_t CheckFile(const std::filesystem::path& path, std::uint64_t every)
{
    std::ifstream file(path, std::ios::binary);
    std::uint64_t number = 0;
    std::uint64_t checked = 0;
    for (std::string line; std::getline(file, line); ++number) {
        if (number % kProgress == 0)
            std::fprintf(stderr, "%s: from line %llu\n", path.filename().c_str(),
                         static_cast<unsigned long long>(number + 1));
        if (number % every != 0 || line.empty())
            continue;
        CheckCuts(line);
        ++checked;
    }
    return checked;
}

} // namespace

int main(int count, char** arguments)
{
    const char* const folder = std::getenv("RUVENMARK_LOGS");
    if (folder == nullptr || count > 2) {
        std::fprintf(stderr, "usage: RUVENMARK_LOGS=FOLDER decoder_cuts [EVERY]\n");
        return kWrongUse;
    }
    const std::uint64_t every = count == 2 ? std::max<std::uint64_t>(1, std::strtoull(arguments[1], nullptr, 10)) : 1;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".log")
            std::printf("%s: %llu lines held at every length\n", entry.path().filename().c_str(),
                        static_cast<unsigned long long>(CheckFile(entry.path(), every)));
    return 0;
}
