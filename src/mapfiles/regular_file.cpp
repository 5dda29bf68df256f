#include "mapfiles/regular_file.h"

#include "platform/failure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ruvenmark {

RegularFile::RegularFile(const std::string& path)
    : m_descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))
{
    struct stat status {};
    if (m_descriptor < 0)
        throw Failure(path + ": " + std::generic_category().message(errno));
    if (fstat(m_descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(m_descriptor);
        throw Failure(path + " is no file");
    }
    m_size = static_cast<std::size_t>(status.st_size);
}

RegularFile::~RegularFile()
{
    close(m_descriptor);
}

std::string RegularFile::Read() const
{
    std::string bytes(m_size, '\0');
    std::size_t length = 0;
    while (length < m_size) {
        const ssize_t count = pread(m_descriptor, bytes.data() + length, m_size - length, static_cast<off_t>(length));
        if (count < 0)
            throw Failure("a file cannot be read: " + std::generic_category().message(errno));
        if (count == 0)
            break; // It has become shorter.
        length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    return bytes;
}

} // namespace ruvenmark
