#include "platform/file_replacement.h"

#include "platform/file_descriptor.h"
#include "platform/files.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>

namespace ruvenmark {

namespace {

constexpr mode_t kPrivateFile = 0600, kOrdinaryFile = 0666; // The latter less what the umask takes.
constexpr mode_t kPermissions = 07777;
constexpr std::string_view kTemporaryName = ".ruvenmark-";
constexpr int kMaxNames = 1000; // More of them stand only where something else is wrong.

// Whether the opened file still is the one of this path.
bool IsFileOf(const Descriptor& opened, const std::string& path)
{
    struct stat here = {}, named = {};
    return ::fstat(opened.Number(), &here) == 0 && ::lstat(path.c_str(), &named) == 0 && S_ISREG(here.st_mode) &&
           here.st_dev == named.st_dev && here.st_ino == named.st_ino;
}

// A new file of a name that nobody has, locked for as long as it is open: that tells it from a leftover. Not open, with
// errno, where none can be made.
Descriptor MakeTemporary(const std::string& folder, mode_t mode, std::string& path)
{
    for (int number = 0; number < kMaxNames; ++number) {
        path = JoinPath(folder, kTemporaryName);
        path += std::to_string(::getpid()) + "-" + std::to_string(number);
        Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (!file.IsOpen() && errno == EEXIST)
            continue;
        if (!file.IsOpen())
            return file;
        // Whoever clears leftovers away may have been faster; where there are no locks nobody clears anything.
        if (::flock(file.Number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
            if (IsFileOf(file, path))
                return file;
    }
    errno = EEXIST;
    return Descriptor(-1);
}

// A new file beside the one to be replaced; removed unless it took that one's place.
class TemporaryFile {
public:
    TemporaryFile(const std::string& folder, mode_t mode) : m_file(MakeTemporary(folder, mode, m_path)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (m_file.IsOpen() && !m_bRenamed)
            ::unlink(m_path.c_str());
    }

    bool IsOpen() const { return m_file.IsOpen(); }
    bool SetMode(mode_t mode) { return ::fchmod(m_file.Number(), mode & kPermissions) == 0; }
    bool Write(std::string_view text)
    {
        while (!text.empty()) {
            const ssize_t count = ::write(m_file.Number(), text.data(), text.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                return false;
            text.remove_prefix(static_cast<std::size_t>(count));
        }
        return ::fsync(m_file.Number()) == 0;
    }
    bool RenameTo(const std::string& path)
    {
        m_bRenamed = std::rename(m_path.c_str(), path.c_str()) == 0;
        return m_bRenamed;
    }

private:
    std::string m_path;
    Descriptor m_file;
    bool m_bRenamed = false;
};

// So that the new name is on the disk too. Some file systems cannot; the file itself is whole either way.
void SyncFolder(const std::string& folder)
{
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen())
        ::fsync(opened.Number());
}

void RemoveLeftover(const std::string& path)
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    if (file.IsOpen() && ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0 && IsFileOf(file, path))
        ::unlink(path.c_str());
}

} // namespace

void ReplaceFile(std::string_view text, std::string_view path, FileAccess access)
{
    constexpr std::string_view kVerb = "write";
    const std::string target = FollowLinks(SystemPath(path, kVerb));
    struct stat former = {};
    const bool bReplaces = ::stat(target.c_str(), &former) == 0;
    if (bReplaces && S_ISDIR(former.st_mode))
        FailFile(kVerb, path, EISDIR);
    if (bReplaces && !S_ISREG(former.st_mode))
        FailFile(kVerb, path, "it is no ordinary file");
    if (bReplaces && ::access(target.c_str(), W_OK) != 0)
        FailFile(kVerb, path, errno);

    const bool bPrivate = access == FileAccess::Private;
    const std::string folder = FolderOf(target);
    RemoveLeftovers(folder);
    TemporaryFile file(folder, bReplaces || bPrivate ? kPrivateFile : kOrdinaryFile);
    const bool bKeepsMode = bReplaces && !bPrivate;
    if (!file.IsOpen() || !file.Write(text) || (bKeepsMode && !file.SetMode(former.st_mode)) || !file.RenameTo(target))
        FailFile(kVerb, path, errno);
    SyncFolder(folder);
}

void RemoveLeftovers(std::string_view folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error))
        if (entry->path().filename().native().starts_with(kTemporaryName))
            RemoveLeftover(entry->path().native());
}

} // namespace ruvenmark
