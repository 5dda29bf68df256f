#include "app/headless.h"
#include "app/options.h"
#include "platform/failure.h"
#include "platform/program_name.h"
#include "platform/text.h"
#ifdef RUVENMARK_DESKTOP
#include "app/desktop_program.h"
#endif

#include <csignal>
#include <iostream>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ruvenmark;

int Print(std::string_view text)
{
    std::cout << text;
    return FlushOutput(std::cout, std::cerr) ? kEndedWell : kCannotWrite;
}

int Run(int argc, char** argv)
{
    const ProgramOptions options = ReadOptions(std::vector<std::string>(argv + 1, argv + argc));
    if (options.bHelp)
        return Print(HelpText());
    if (options.bVersion)
        return Print(VersionText() + '\n');
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
    std::signal(SIGXFSZ, SIG_IGN); // A limit on files is then an error of the write, as a full disk is.
    try {
        return Run(argc, argv);
    } catch (const UsageError& error) {
        std::cerr << kProgramWord << TerminalText(error.what()) << '\n';
    } catch (const Failure& failure) {
        std::cerr << kProgramWord << TerminalText(failure.what()) << '\n';
    } catch (const std::bad_alloc&) {
        std::cerr << kProgramWord << "the memory ran out\n";
        return kCannotWrite;
    }
    return kCannotRun;
}
