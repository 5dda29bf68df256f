#pragma once

#include <cstdint>
#include <string_view>

namespace ruvenmark {

enum class FileAccess : std::uint8_t {
    Shared, // As the file had it; a new one as the umask says.
    Private // This user alone, whatever was.
};

// Writes beside the file and takes its place in one step. Raises Failure, and the file is then as it was.
void ReplaceFile(std::string_view text, std::string_view path, FileAccess access);

// Removes what a write that was cut off left in the folder. What another program writes just now stays.
void RemoveLeftovers(std::string_view folder);

} // namespace ruvenmark
