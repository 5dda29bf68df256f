#pragma once

#include "platform/file_descriptor.h"

#include <string>
#include <string_view>

namespace ruvenmark {

// Says beside a file that this program uses it, for as long as this lives; the system takes it back from a program that
// is killed. A name and a link to it are one file.
class FileLock {
public:
    explicit FileLock(std::string_view path);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    // A place where nothing can be locked counts as nobody else's.
    bool IsElsewhere() const { return m_bElsewhere; }

private:
    std::string m_path; // Of the lock.
    Descriptor m_file{-1};
    bool m_bElsewhere = false;
};

} // namespace ruvenmark
