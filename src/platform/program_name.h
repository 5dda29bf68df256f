#pragma once

#include <string_view>

namespace ruvenmark {

inline constexpr std::string_view kProgramName = "Ruvenmark";   // As people read it.
inline constexpr std::string_view kProgramWord = "ruvenmark: "; // Ahead of each line on standard error.

// Three numbers with points between them, from CMakeLists.txt.
std::string_view ProgramVersion();

} // namespace ruvenmark
