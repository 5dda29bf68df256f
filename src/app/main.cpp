#include "app/headless.h"
#include "app/options.h"
#include "platform/failure.h"
#ifdef RUVENMARK_DESKTOP
#include "app/desktop_program.h"
#endif

#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace ruvenmark;

// Wrong options, and missing or unreadable files.
constexpr int kCannotRun = 2;

int Run(int argc, char** argv)
{
    const ProgramOptions options = ReadOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (options.bHelp) {
        std::cout << HelpText();
        return 0;
    }
    if (options.bVersion) {
        std::cout << VersionText() << '\n';
        return 0;
    }
    if (options.bHeadless)
        return RunHeadless(options, std::cout, std::cerr);
#ifdef RUVENMARK_DESKTOP
    return RunDesktop(argc, argv, options);
#else
    throw UsageError("this program was built without a window; use --headless");
#endif
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const UsageError& error) {
        std::cerr << "ruvenmark: " << error.what() << '\n';
    } catch (const Failure& failure) {
        std::cerr << "ruvenmark: " << failure.what() << '\n';
    }
    return kCannotRun;
}
