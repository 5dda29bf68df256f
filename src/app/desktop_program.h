#pragma once

namespace ruvenmark {

struct ProgramOptions;

// The program in its window: start, load, run until it is closed. With a screenshot wanted it renders the window
// without a screen and ends. The exit status. Raises Failure for a file or folder that cannot be used.
int RunDesktop(int argc, char** argv, const ProgramOptions& options);

} // namespace ruvenmark
