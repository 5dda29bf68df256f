#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

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
    // As AskYesNo, for what cannot be brought back: a key pressed in haste means no.
    virtual bool AskToDelete(std::string_view text) = 0;
    virtual Answer AskYesNoCancel(std::string_view text) = 0;
    virtual std::optional<std::string> OpenFile(std::string_view title, FileFilter filter) = 0;
    // Asks before an existing file is taken.
    virtual std::optional<std::string> SaveFile(std::string_view title, FileFilter filter) = 0;
};

} // namespace ruvenmark
