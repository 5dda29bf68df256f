#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

class IFiles {
public:
    virtual ~IFiles() = default;

    virtual std::string ReadText(std::string_view path) = 0; // Whole, byte for byte. Raises Failure.
    // Replaces the file in one step: a crash leaves the old one or the new one. Raises Failure.
    virtual void WriteText(std::string_view text, std::string_view path) = 0;
    virtual void Remove(std::string_view path) = 0; // A missing file is no failure.
    virtual bool Exists(std::string_view path) = 0;
};

// The machine's files, by POSIX.
class PosixFiles final : public IFiles {
public:
    std::string ReadText(std::string_view path) override;
    void WriteText(std::string_view text, std::string_view path) override;
    void Remove(std::string_view path) override;
    bool Exists(std::string_view path) override;
};

// The folder and the name with one separator between them.
std::string JoinPath(std::string_view folder, std::string_view name);
// What stands ahead of the last separator: "." where there is none, "/" right under the root.
std::string FolderOf(std::string_view path);

// The program folder and the settings file of this user, by the XDG base directory rules; an unset or relative
// variable counts as its default.
std::string DefaultProgramFolder();
std::string DefaultSettingsFile();
// Makes the folder and those above it. Raises Failure.
void MakeFolder(std::string_view path);

} // namespace ruvenmark
