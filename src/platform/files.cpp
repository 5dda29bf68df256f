#include "platform/files.h"

#include "platform/failure.h"
#include "platform/file_descriptor.h"
#include "platform/file_replacement.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::uint64_t kMegabyte = 1000000;

struct KindTraits {
    std::uint64_t maxSize;
    FileAccess access;
};
// In the order of FileKind.
constexpr std::array<KindTraits, 3> kKinds = {{
    {4 * kMegabyte, FileAccess::Private},  // Some hundred keys; track lists and filters typed by hand. Holds passcodes.
    {256 * kMegabyte, FileAccess::Shared}, // Servers typed by hand; messages, of a full feed some MB a day.
    {512 * kMegabyte, FileAccess::Shared}, // Some 250 bytes a marker: two million of them.
}};

const KindTraits& Traits(FileKind kind)
{
    return kKinds[static_cast<std::size_t>(kind)];
}

// Opens for reading; a pipe without a writer does not hold it up. `found` is what stands there.
Descriptor OpenToRead(std::string_view path, struct stat& found)
{
    Descriptor file(::open(SystemPath(path, "open").c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.IsOpen() || ::fstat(file.Number(), &found) != 0)
        FailFile("open", path, errno);
    if (S_ISDIR(found.st_mode))
        FailFile("read", path, EISDIR);
    return file;
}

// No value at the end.
std::optional<std::size_t> ReadSome(const Descriptor& file, std::span<char> room, std::string_view path)
{
    for (;;) {
        const ssize_t count = ::read(file.Number(), room.data(), room.size());
        if (count > 0)
            return static_cast<std::size_t>(count);
        if (count == 0)
            return std::nullopt;
        if (errno == EAGAIN)
            return 0;
        if (errno != EINTR)
            FailFile("read", path, errno);
    }
}

class PosixStream final : public IByteStream {
public:
    PosixStream(Descriptor file, std::optional<std::uint64_t> size, std::string_view path)
        : m_file(std::move(file)), m_size(size), m_path(path)
    {
    }

    std::optional<std::size_t> Read(std::span<char> room, std::chrono::milliseconds wait) override
    {
        // A pipe that nobody has opened for writing yet reads as ended; waiting for it tells the difference.
        pollfd waiting = {m_file.Number(), POLLIN, 0};
        if (!m_size && ::poll(&waiting, 1, static_cast<int>(wait.count())) <= 0)
            return 0;
        return ReadSome(m_file, room, m_path);
    }
    std::optional<std::uint64_t> Size() const override { return m_size; }

private:
    Descriptor m_file;
    std::optional<std::uint64_t> m_size;
    std::string m_path;
};

} // namespace

void FailFile(std::string_view verb, std::string_view path, std::string_view reason)
{
    std::string text = "cannot ";
    text.append(verb).append(" ").append(path).append(": ").append(reason);
    throw Failure(text);
}

void FailFile(std::string_view verb, std::string_view path, int error)
{
    const char* reason = strerrordesc_np(error);
    FailFile(verb, path, reason ? std::string(reason) : "error " + std::to_string(error));
}

std::uint64_t MaxFileSize(FileKind kind)
{
    return Traits(kind).maxSize;
}

std::string PosixFiles::ReadText(std::string_view path, FileKind kind)
{
    struct stat found = {};
    const Descriptor file = OpenToRead(path, found);
    if (!S_ISREG(found.st_mode))
        FailFile("read", path, "it is no ordinary file");
    std::string text;
    std::array<char, 65536> part; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by read.
    const std::uint64_t most = MaxFileSize(kind);
    auto size = static_cast<std::uint64_t>(found.st_size); // It may grow as we read, or be unknown to the system.
    while (size <= most) {
        const auto count = ReadSome(file, part, path);
        if (!count)
            return text;
        text.append(part.data(), *count);
        size = text.size();
    }
    FailFile("read", path, "it is larger than " + std::to_string(most / kMegabyte) + " MB");
}

void PosixFiles::WriteText(std::string_view text, std::string_view path, FileKind kind)
{
    ReplaceFile(text, path, Traits(kind).access);
}

std::unique_ptr<IByteStream> PosixFiles::OpenStream(std::string_view path)
{
    struct stat found = {};
    Descriptor file = OpenToRead(path, found);
    if (S_ISREG(found.st_mode))
        return std::make_unique<PosixStream>(std::move(file), static_cast<std::uint64_t>(found.st_size), path);
    if (S_ISFIFO(found.st_mode))
        return std::make_unique<PosixStream>(std::move(file), std::nullopt, path);
    FailFile("read", path, "it is neither a file nor a pipe");
}

void PosixFiles::Remove(std::string_view path)
{
    if (::unlink(SystemPath(path, "remove").c_str()) != 0 && errno != ENOENT && errno != ENOTDIR)
        FailFile("remove", path, errno);
}

bool PosixFiles::Exists(std::string_view path)
{
    struct stat found = {};
    return path.find('\0') == std::string_view::npos && ::stat(std::string(path).c_str(), &found) == 0;
}

bool PosixFiles::IsReadableByOthers(std::string_view path)
{
    struct stat found = {};
    return path.find('\0') == std::string_view::npos && ::stat(std::string(path).c_str(), &found) == 0 &&
           (found.st_mode & (S_IRGRP | S_IROTH)) != 0;
}

bool PosixFiles::IsFolder(std::string_view path)
{
    struct stat found = {};
    return path.find('\0') == std::string_view::npos && ::stat(std::string(path).c_str(), &found) == 0 &&
           S_ISDIR(found.st_mode);
}

std::string PosixFiles::Head(std::string_view path, std::size_t most)
{
    struct stat found = {};
    if (path.find('\0') != std::string_view::npos || ::stat(std::string(path).c_str(), &found) != 0 ||
        !S_ISREG(found.st_mode)) // Opening a pipe alone could end whoever writes to it.
        return {};
    try {
        std::string head(most, '\0');
        const auto count = OpenStream(path)->Read(head, std::chrono::milliseconds(0));
        head.resize(count.value_or(0));
        return head;
    } catch (const Failure&) {
        return {}; // Whoever opens it in earnest tells why.
    }
}

} // namespace ruvenmark
