#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ruvenmark {

// What a file is to the program: how large it may be, and who may read it, goes with that.
enum class FileKind : std::uint8_t { Settings, List, Map };

// An opened file or pipe, read once from its beginning.
class IByteStream {
public:
    virtual ~IByteStream() = default;

    // How many bytes were put into the room, which is not empty: 0 where none came within the wait, no value at the
    // end. Raises Failure.
    virtual std::optional<std::size_t> Read(std::span<char> room, std::chrono::milliseconds wait) = 0;
    // Of all that will come, in bytes; no value for a pipe.
    virtual std::optional<std::uint64_t> Size() const = 0;
};

class IFiles {
public:
    virtual ~IFiles() = default;

    // Whole, byte for byte. Raises Failure, also for a pipe or device and for a file larger than its kind can be.
    virtual std::string ReadText(std::string_view path, FileKind kind) = 0;
    // Replaces the file in one step: a crash leaves the old one or the new one. Raises Failure.
    virtual void WriteText(std::string_view text, std::string_view path, FileKind kind) = 0;
    // A file or pipe of any length; a pipe that nobody writes to yet is no failure. Raises Failure.
    virtual std::unique_ptr<IByteStream> OpenStream(std::string_view path) = 0;
    virtual void Remove(std::string_view path) = 0; // A missing file is no failure.
    virtual bool Exists(std::string_view path) = 0;
    // Whether anybody but the owner may read it; a missing file, nobody.
    virtual bool IsReadableByOthers(std::string_view path) = 0;
    virtual bool IsFolder(std::string_view /*path*/) { return false; }
    // The first bytes of an ordinary file; empty for a pipe or device, from which they would be gone, and for what
    // cannot be read.
    virtual std::string Head(std::string_view /*path*/, std::size_t /*most*/) { return {}; }
};

// The machine's files, by POSIX. No call waits for another program.
class PosixFiles final : public IFiles {
public:
    std::string ReadText(std::string_view path, FileKind kind) override;
    void WriteText(std::string_view text, std::string_view path, FileKind kind) override;
    std::unique_ptr<IByteStream> OpenStream(std::string_view path) override;
    void Remove(std::string_view path) override;
    bool Exists(std::string_view path) override;
    bool IsReadableByOthers(std::string_view path) override;
    bool IsFolder(std::string_view path) override;
    std::string Head(std::string_view path, std::size_t most) override;
};

// The most bytes that a file of this kind can sensibly have.
std::uint64_t MaxFileSize(FileKind kind);

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
