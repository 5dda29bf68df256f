#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

class IClock {
public:
    virtual ~IClock() = default;
    // Local date and time as shown and stored: "2026-11-22 20:15:03".
    virtual std::string_view LocalNowText() = 0; // Lives until the next call.
};

class SystemClock final : public IClock {
public:
    std::string_view LocalNowText() override;

private:
    std::int64_t m_second = -1; // What m_text was made for.
    std::string m_text;
};

class ISound {
public:
    virtual ~ISound() = default;
    virtual void PlayAndWait(std::string_view path) = 0; // Blocks until it has ended; silent where it cannot play.
};

class ISleep {
public:
    virtual ~ISleep() = default;
    virtual void SleepMs(std::int32_t milliseconds) = 0;
};

class SystemSleep final : public ISleep {
public:
    void SleepMs(std::int32_t milliseconds) override;
};

// Lets the user interface and the other sources do what is pending. Anything may have changed when it returns.
class IYield {
public:
    virtual ~IYield() = default;
    virtual void ProcessPending() = 0;
};

// One line each for whoever can do something about it, without the program's name and without a line end.
class INotices {
public:
    virtual ~INotices() = default;
    virtual void Say(std::string_view line) = 0;
};

enum class Answer : std::uint8_t { Yes, No, Cancel };

struct FileFilter {
    std::string_view label;   // "Station Files (*.*)"
    std::string_view pattern; // "*.*"
};

// Boxes that wait for the operator. All carry the program's title.
class IPrompts {
public:
    virtual ~IPrompts() = default;
    virtual void Message(std::string_view text) = 0;
    virtual bool AskYesNo(std::string_view text) = 0;
    virtual Answer AskYesNoCancel(std::string_view text) = 0;
    virtual std::optional<std::string> OpenFile(std::string_view title, FileFilter filter) = 0;
    // Asks before an existing file is taken.
    virtual std::optional<std::string> SaveFile(std::string_view title, FileFilter filter) = 0;
};

} // namespace ruvenmark
