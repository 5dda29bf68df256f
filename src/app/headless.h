#pragma once

#include "app/options.h"

#include <iosfwd>

namespace ruvenmark {

// The real program without a window: start, load, print to `out`, stop. What the operator would be shown goes to `err`.
// The exit status. Raises Failure for a file or folder that cannot be used.
int RunHeadless(const ProgramOptions& options, std::ostream& out, std::ostream& err);

} // namespace ruvenmark
