#include "platform/headless.h"

#include "platform/program_name.h"
#include "platform/text.h"

#include <ostream>
#include <thread>

namespace ruvenmark {

void HeadlessPrompts::Message(std::string_view text)
{
    m_messages.emplace_back(text);
    Print(text, "");
}

bool HeadlessPrompts::AskYesNo(std::string_view text)
{
    Print(text, " No");
    return false;
}

Answer HeadlessPrompts::AskYesNoCancel(std::string_view text)
{
    Print(text, " Cancel");
    return Answer::Cancel;
}

std::optional<std::string> HeadlessPrompts::OpenFile(std::string_view title, FileFilter filter)
{
    Print(std::string(title).append(", ").append(filter.label), ": no file");
    return std::nullopt;
}

std::optional<std::string> HeadlessPrompts::SaveFile(std::string_view title, FileFilter filter)
{
    return OpenFile(title, filter);
}

void PrintedNotices::Say(std::string_view line)
{
    m_out << kProgramWord << TerminalText(line) << std::endl; // At once: what comes next may be the end.
}

void NoYield::Wait(std::chrono::milliseconds atMost)
{
    std::this_thread::sleep_for(atMost);
}

void HeadlessPrompts::Print(std::string_view text, std::string_view answer)
{
    m_out << kProgramWord << TerminalText(text) << answer << '\n';
}

} // namespace ruvenmark
