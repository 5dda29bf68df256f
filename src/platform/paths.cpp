#include "platform/file_descriptor.h"
#include "platform/files.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sys/stat.h>

namespace ruvenmark {

namespace {

constexpr mode_t kPrivateFolder = 0700;
constexpr int kMaxLinks = 40; // As the kernel has it.

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

std::string SystemPath(std::string_view path, std::string_view verb)
{
    if (path.find('\0') != std::string_view::npos)
        FailFile(verb, path, EINVAL);
    return std::string(path);
}

std::string FollowLinks(std::string path)
{
    for (int links = 0; links < kMaxLinks; ++links) {
        std::error_code error;
        const auto target = std::filesystem::read_symlink(path, error);
        if (error)
            return path;
        path = target.is_absolute() ? target.string() : JoinPath(FolderOf(path), target.string());
    }
    FailFile("open", path, ELOOP);
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
            FailFile("make", path, ENOTDIR);
        return;
    }
    if (const std::string above = FolderOf(folder); above != folder)
        MakeFolder(above);
    if (::mkdir(folder.c_str(), kPrivateFolder) != 0 && errno != EEXIST)
        FailFile("make", path, errno);
}

} // namespace ruvenmark
