#pragma once

#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "platform/sound.h"
#include "platform/waiting.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Stand-ins for the machine and the operator that tests set up before and look at afterwards.
namespace ruvenmark {

class FakeClock final : public IClock {
public:
    std::string_view LocalNowText() override
    {
        const std::time_t seconds = m_now.time_since_epoch().count();
        m_text.resize(19);
        std::strftime(m_text.data(), m_text.size() + 1, "%Y-%m-%d %H:%M:%S", std::gmtime(&seconds));
        return m_text;
    }
    // The test's machine stands in a zone five hours behind.
    UtcTime UtcNow() override
    {
        const std::time_t seconds = (m_now + std::chrono::hours(5)).time_since_epoch().count();
        const std::tm utc = *std::gmtime(&seconds);
        return {utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min};
    }
    std::int64_t UnixSeconds() override { return (m_now + std::chrono::hours(5)).time_since_epoch().count(); }
    void Advance(std::chrono::seconds seconds) { m_now += seconds; }

private:
    std::chrono::sys_seconds m_now = std::chrono::sys_days(std::chrono::year(2026) / 11 / 22) + std::chrono::hours(20) +
                                     std::chrono::minutes(15) + std::chrono::seconds(3);
    std::string m_text;
};

// Answers from the queues, else no, cancel or no file.
class RecordingPrompts final : public IPrompts {
public:
    std::vector<std::string> messages, questions;
    std::vector<std::string> fileTitles; // Of file choices.
    std::deque<Answer> answers;
    std::function<void()> whileAsked; // What happens while a question stands.
    std::deque<std::string> files;

    void Message(std::string_view text) override { messages.emplace_back(text); }
    bool AskYesNo(std::string_view text) override { return Ask(text, Answer::No) == Answer::Yes; }
    bool AskToDelete(std::string_view text) override { return AskYesNo(text); }
    Answer AskYesNoCancel(std::string_view text) override { return Ask(text, Answer::Cancel); }
    std::optional<std::string> OpenFile(std::string_view title, FileFilter /*filter*/) override
    {
        return ChooseFile(title);
    }
    std::optional<std::string> SaveFile(std::string_view title, FileFilter /*filter*/) override
    {
        return ChooseFile(title);
    }

private:
    Answer Ask(std::string_view text, Answer fallback)
    {
        questions.emplace_back(text);
        if (whileAsked)
            whileAsked();
        if (answers.empty())
            return fallback;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> ChooseFile(std::string_view title)
    {
        fileTitles.emplace_back(title);
        if (files.empty())
            return std::nullopt;
        std::optional<std::string> file = std::move(files.front());
        files.pop_front();
        return file;
    }
};

// Bytes that come as a test deals them out: each piece is one read, an empty one a wait without anything.
class MemoryStream final : public IByteStream {
public:
    MemoryStream(std::vector<std::string> pieces, std::optional<std::uint64_t> size)
        : m_pieces(pieces.begin(), pieces.end()), m_size(size)
    {
    }
    std::optional<std::size_t> Read(std::span<char> room, std::chrono::milliseconds /*wait*/) override
    {
        if (m_pieces.empty())
            return std::nullopt;
        const std::size_t count = m_pieces.front().copy(room.data(), room.size());
        m_pieces.front().erase(0, count);
        if (m_pieces.front().empty())
            m_pieces.pop_front();
        return count;
    }
    std::optional<std::uint64_t> Size() const override { return m_size; }

private:
    std::deque<std::string> m_pieces;
    std::optional<std::uint64_t> m_size;
};

class RecordingNotices final : public INotices {
public:
    std::vector<std::string> lines;
    void Say(std::string_view line) override { lines.emplace_back(line); }
};

// Files in memory that fail on demand.
class MemoryFiles final : public IFiles {
public:
    std::map<std::string, std::string, std::less<>> texts; // By path.
    std::set<std::string, std::less<>> unreadable;         // Paths that are there but cannot be read.
    std::set<std::string, std::less<>> open;               // Paths that others may read.
    std::set<std::string, std::less<>> folders;
    int writes = 0; // So far, failed ones included.

    // The nth write from now on fails and leaves the file as it was; 1 is the next.
    void FailWrite(int nth) { m_failingWrite = writes + nth; }

    std::string ReadText(std::string_view path, FileKind /*kind*/) override
    {
        const auto found = texts.find(path);
        if (found == texts.end() || unreadable.contains(path))
            throw Failure("cannot open " + std::string(path));
        return found->second;
    }
    std::unique_ptr<IByteStream> OpenStream(std::string_view path) override
    {
        const std::string text = ReadText(path, FileKind::List);
        return std::make_unique<MemoryStream>(text.empty() ? std::vector<std::string>() : std::vector{text},
                                              text.size());
    }
    void WriteText(std::string_view text, std::string_view path, FileKind /*kind*/) override
    {
        if (++writes == m_failingWrite)
            throw Failure("cannot write " + std::string(path));
        texts[std::string(path)] = text;
    }
    void Remove(std::string_view path) override { texts.erase(std::string(path)); }
    bool Exists(std::string_view path) override { return texts.contains(path); }
    bool IsReadableByOthers(std::string_view path) override { return open.contains(path); }
    bool IsFolder(std::string_view path) override { return folders.contains(path); }
    std::string Head(std::string_view path, std::size_t most) override
    {
        const auto found = texts.find(path);
        return found == texts.end() ? std::string() : found->second.substr(0, most);
    }

private:
    int m_failingWrite = 0;
};

class RecordingSound final : public ISound {
public:
    std::vector<std::string> played;
    void PlayAndWait(std::string_view path) override { played.emplace_back(path); }
};

class RecordingSleep final : public ISleep {
public:
    std::vector<std::int32_t> slept; // Milliseconds, call by call.
    void SleepMs(std::int32_t milliseconds) override { slept.push_back(milliseconds); }
};

// Lets something happen in the midst of a loop that yields.
class ScriptedYield final : public IYield {
public:
    int calls = 0;
    // At the nth call from the start; 1 is the first.
    void At(int nth, std::function<void()> action) { m_actions[nth] = std::move(action); }

    void ProcessPending() override
    {
        const auto found = m_actions.find(++calls);
        if (found != m_actions.end())
            found->second();
    }

    // What happens while the program waits; without it the time stands still.
    std::function<void(std::chrono::milliseconds)> onWait;
    void Wait(std::chrono::milliseconds atMost) override
    {
        if (!onWait)
            throw std::logic_error("a wait that nobody ends");
        onWait(atMost);
    }

private:
    std::map<int, std::function<void()>> m_actions;
};

} // namespace ruvenmark
