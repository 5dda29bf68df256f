#pragma once

#include <string_view>

namespace ruvenmark {

inline constexpr std::string_view kProgramName = "Ruvenmark"; // As people read it.

// Three numbers with points between them, from CMakeLists.txt.
std::string_view ProgramVersion();

} // namespace ruvenmark
