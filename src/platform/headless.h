#pragma once

#include "platform/prompts.h"
#include "platform/sound.h"
#include "platform/waiting.h"

#include <chrono>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What stands behind the services where nobody watches.
namespace ruvenmark {

// Prints every message and question, with the answer that changes nothing: no, cancel, no file.
class HeadlessPrompts final : public IPrompts {
public:
    // The stream outlives this.
    explicit HeadlessPrompts(std::ostream& out) : m_out(out) {}

    void Message(std::string_view text) override;
    bool AskYesNo(std::string_view text) override;
    bool AskToDelete(std::string_view text) override { return AskYesNo(text); }
    Answer AskYesNoCancel(std::string_view text) override;
    std::optional<std::string> OpenFile(std::string_view title, FileFilter filter) override;
    std::optional<std::string> SaveFile(std::string_view title, FileFilter filter) override;

    const std::vector<std::string>& Messages() const { return m_messages; } // In order.

private:
    void Print(std::string_view text, std::string_view answer);

    std::ostream& m_out;
    std::vector<std::string> m_messages;
};

// One line on a stream each, the program's name in front.
class PrintedNotices final : public INotices {
public:
    // The stream outlives this.
    explicit PrintedNotices(std::ostream& out) : m_out(out) {}
    void Say(std::string_view line) override;

private:
    std::ostream& m_out;
};

class SilentSound final : public ISound {
public:
    void PlayAndWait(std::string_view /*path*/) override {}
};

class NoYield final : public IYield {
public:
    void ProcessPending() override {}
    void Wait(std::chrono::milliseconds atMost) override;
};

} // namespace ruvenmark
