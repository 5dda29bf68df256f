#pragma once

#include "app/options.h"

#include <iosfwd>

namespace ruvenmark {

// The statuses that the program ends with.
inline constexpr int kEndedWell = 0;
inline constexpr int kCannotWrite = 1; // The output, the settings or a list; a link; memory that ran out.
inline constexpr int kCannotRun = 2;   // Wrong options, and missing or unreadable files.

// False, and a line on `err`, where what was printed could not be written.
bool FlushOutput(std::ostream& out, std::ostream& err);

// The real program without a window: start, load, print to `out`, stop. What the operator would be shown goes to `err`.
// The exit status. Raises Failure for a file or folder that cannot be used.
int RunHeadless(const ProgramOptions& options, std::ostream& out, std::ostream& err);

} // namespace ruvenmark
