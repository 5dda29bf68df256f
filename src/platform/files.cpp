#include "platform/files.h"

#include "platform/failure.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr mode_t kPrivateFile = 0600, kOrdinaryFile = 0666; // The latter less what the umask takes.
constexpr mode_t kPrivateFolder = 0700;
constexpr mode_t kPermissions = 07777;
constexpr int kMaxLinks = 40; // As the kernel has it.

// "cannot open /x/y: No such file or directory". The C library's own words, never translated.
[[noreturn]] void Fail(std::string_view verb, std::string_view path, int error)
{
    const char* reason = strerrordesc_np(error);
    throw Failure("cannot " + std::string(verb) + " " + std::string(path) + ": " +
                  (reason ? reason : "error " + std::to_string(error)));
}

// The system ends a path at a NUL and would take another file.
std::string SystemPath(std::string_view path, std::string_view verb)
{
    if (path.find('\0') != std::string_view::npos)
        Fail(verb, path, EINVAL);
    return std::string(path);
}

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (IsOpen())
            ::close(m_number);
    }
    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }

private:
    int m_number;
};

std::string TemporaryPath(const std::string& folder)
{
    return JoinPath(folder, ".ruvenmark-" + std::to_string(::getpid()));
}

// A new file beside the one to be replaced; removed unless it took that one's place.
class TemporaryFile {
public:
    TemporaryFile(const std::string& folder, mode_t mode)
        : m_path(TemporaryPath(folder)), m_file(::open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode))
    {
    }
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

// The file that a symbolic link stands for, there or not.
std::string FollowLinks(std::string path)
{
    for (int links = 0; links < kMaxLinks; ++links) {
        std::error_code error;
        const auto target = std::filesystem::read_symlink(path, error);
        if (error)
            return path;
        path = target.is_absolute() ? target.string() : JoinPath(FolderOf(path), target.string());
    }
    Fail("write", path, ELOOP);
}

// A file left behind by a crash may carry the name of our process.
void RemoveLeftover(const std::string& folder)
{
    ::unlink(TemporaryPath(folder).c_str());
}

// So that the new name is on the disk too. Some file systems cannot; the file itself is whole either way.
void SyncFolder(const std::string& folder)
{
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen())
        ::fsync(opened.Number());
}

std::string HomeFolder()
{
    const char* home = std::getenv("HOME");
    if (home && *home == '/')
        return home;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

std::string BaseFolder(const char* variable, std::string_view underHome)
{
    const char* folder = std::getenv(variable);
    return folder && *folder == '/' ? folder : JoinPath(HomeFolder(), underHome);
}

} // namespace

std::string PosixFiles::ReadText(std::string_view path)
{
    const Descriptor file(::open(SystemPath(path, "open").c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.IsOpen())
        Fail("open", path, errno);
    std::string text;
    std::array<char, 65536> part; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by read.
    for (;;) {
        const ssize_t count = ::read(file.Number(), part.data(), part.size());
        if (count == 0)
            return text;
        if (count > 0)
            text.append(part.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            Fail("read", path, errno);
    }
}

void PosixFiles::WriteText(std::string_view text, std::string_view path)
{
    const std::string target = FollowLinks(SystemPath(path, "write"));
    struct stat former = {};
    const bool bReplaces = ::stat(target.c_str(), &former) == 0;
    if (bReplaces && !S_ISREG(former.st_mode))
        Fail("write", path, S_ISDIR(former.st_mode) ? EISDIR : EINVAL);
    if (bReplaces && ::access(target.c_str(), W_OK) != 0)
        Fail("write", path, errno);

    const std::string folder = FolderOf(target);
    RemoveLeftover(folder);
    TemporaryFile file(folder, bReplaces ? kPrivateFile : kOrdinaryFile);
    if (!file.IsOpen() || !file.Write(text) || (bReplaces && !file.SetMode(former.st_mode)) || !file.RenameTo(target))
        Fail("write", path, errno);
    SyncFolder(folder);
}

void PosixFiles::Remove(std::string_view path)
{
    if (::unlink(SystemPath(path, "remove").c_str()) != 0 && errno != ENOENT && errno != ENOTDIR)
        Fail("remove", path, errno);
}

bool PosixFiles::Exists(std::string_view path)
{
    struct stat found = {};
    return path.find('\0') == std::string_view::npos && ::stat(std::string(path).c_str(), &found) == 0;
}

std::string JoinPath(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    if (!path.empty() && path.back() != '/')
        path += '/';
    path += name;
    return path;
}

std::string FolderOf(std::string_view path)
{
    const auto slash = path.rfind('/');
    if (slash == std::string_view::npos)
        return ".";
    return std::string(path.substr(0, slash == 0 ? 1 : slash));
}

std::string DefaultProgramFolder()
{
    return JoinPath(BaseFolder("XDG_DATA_HOME", ".local/share"), "ruvenmark");
}

std::string DefaultSettingsFile()
{
    return JoinPath(BaseFolder("XDG_CONFIG_HOME", ".config"), "ruvenmark/settings.ini");
}

void MakeFolder(std::string_view path)
{
    std::string folder = SystemPath(path, "make");
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    struct stat found = {};
    if (::stat(folder.c_str(), &found) == 0) {
        if (!S_ISDIR(found.st_mode))
            Fail("make", path, ENOTDIR);
        return;
    }
    if (const std::string above = FolderOf(folder); above != folder)
        MakeFolder(above);
    if (::mkdir(folder.c_str(), kPrivateFolder) != 0 && errno != EEXIST)
        Fail("make", path, errno);
}

} // namespace ruvenmark
