#pragma once

#include "platform/services.h"

#include <deque>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

// What stands behind the services where nobody watches.
namespace ruvenmark {

// Prints every message and question, with the answer taken: the next of those given beforehand, else the one that
// changes nothing (no, cancel, no file).
class HeadlessPrompts final : public IPrompts {
public:
    // The stream outlives this.
    explicit HeadlessPrompts(std::ostream& out) : m_out(out) {}

    void GiveAnswer(Answer answer) { m_answers.push_back(answer); }
    void GiveFile(std::string path) { m_files.push_back(std::move(path)); }

    void Message(std::string_view text) override;
    bool AskYesNo(std::string_view text) override;
    Answer AskYesNoCancel(std::string_view text) override;
    std::optional<std::string> OpenFile(std::string_view title, FileFilter filter) override;
    std::optional<std::string> SaveFile(std::string_view title, FileFilter filter) override;

private:
    Answer Ask(std::string_view text, Answer fallback);
    std::optional<std::string> AskFile(std::string_view title, FileFilter filter);

    std::ostream& m_out;
    std::deque<Answer> m_answers;
    std::deque<std::string> m_files;
};

class SilentSound final : public ISound {
public:
    void PlayAndWait(std::string_view /*path*/) override {}
};

class NoYield final : public IYield {
public:
    void ProcessPending() override {}
};

} // namespace ruvenmark
