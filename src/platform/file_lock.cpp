#include "platform/file_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr mode_t kPrivateFile = 0600;

// Who ends takes the name away: another one may have opened it just before and would lock what no name leads to.
bool IsNamed(const Descriptor& file, const std::string& path)
{
    struct stat here = {}, named = {};
    return ::fstat(file.Number(), &here) == 0 && ::stat(path.c_str(), &named) == 0 && here.st_dev == named.st_dev &&
           here.st_ino == named.st_ino;
}

} // namespace

FileLock::FileLock(std::string_view path) : m_path(FollowLinks(SystemPath(path, "lock")) + ".lock")
{
    for (;;) {
        Descriptor file(::open(m_path.c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC, kPrivateFile));
        if (!file.IsOpen())
            return;
        if (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
            m_bElsewhere = errno == EWOULDBLOCK;
            return;
        }
        if (IsNamed(file, m_path)) {
            m_file = std::move(file);
            return;
        }
    }
}

FileLock::~FileLock()
{
    if (m_file.IsOpen())
        ::unlink(m_path.c_str());
}

} // namespace ruvenmark
