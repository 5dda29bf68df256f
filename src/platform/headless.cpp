#include "platform/headless.h"

#include "platform/settings_store.h"
#include "platform/text.h"

#include <cstdint>
#include <ostream>
#include <utility>

namespace ruvenmark {

namespace {

// Nothing that came over the air may steer the terminal: control characters, U+0080 to U+009F too, turn into '?'.
std::string Printable(std::string_view bytes)
{
    const std::string shown = ShownText(bytes);
    std::string text;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(shown[i]);
        const bool bHighControl = byte == 0xC2 && static_cast<std::uint8_t>(shown[i + 1]) < 0xA0;
        if (bHighControl)
            ++i;
        if (bHighControl || (byte < 0x20 && byte != '\n') || byte == 0x7F)
            text += '?';
        else
            text += shown[i];
    }
    return text;
}

std::string_view AnswerText(Answer answer)
{
    switch (answer) {
    case Answer::Yes:
        return "Yes";
    case Answer::No:
        return "No";
    case Answer::Cancel:
        break;
    }
    return "Cancel";
}

template <typename Given>
std::optional<Given> TakeNext(std::deque<Given>& given)
{
    if (given.empty())
        return std::nullopt;
    std::optional<Given> next = std::move(given.front());
    given.pop_front();
    return next;
}

} // namespace

void HeadlessPrompts::Message(std::string_view text)
{
    m_out << kApplication << ": " << Printable(text) << '\n';
}

bool HeadlessPrompts::AskYesNo(std::string_view text)
{
    return Ask(text, Answer::No) == Answer::Yes;
}

Answer HeadlessPrompts::AskYesNoCancel(std::string_view text)
{
    return Ask(text, Answer::Cancel);
}

Answer HeadlessPrompts::Ask(std::string_view text, Answer fallback)
{
    const Answer answer = TakeNext(m_answers).value_or(fallback);
    m_out << kApplication << ": " << Printable(text) << ' ' << AnswerText(answer) << '\n';
    return answer;
}

std::optional<std::string> HeadlessPrompts::OpenFile(std::string_view title, FileFilter filter)
{
    return AskFile(title, filter);
}

std::optional<std::string> HeadlessPrompts::SaveFile(std::string_view title, FileFilter filter)
{
    return AskFile(title, filter);
}

std::optional<std::string> HeadlessPrompts::AskFile(std::string_view title, FileFilter filter)
{
    std::optional<std::string> file = TakeNext(m_files);
    m_out << kApplication << ": " << title << ", " << filter.label << ": " << (file ? Printable(*file) : "no file")
          << '\n';
    return file;
}

} // namespace ruvenmark
