#pragma once

#include <cstddef>
#include <string>

namespace ruvenmark {

// A file open for reading. Pipes, devices and folders are refused, so that neither opening nor reading waits for
// anybody.
class RegularFile {
public:
    explicit RegularFile(const std::string& path); // Raises Failure.
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;
    ~RegularFile();

    std::size_t Size() const { return m_size; } // When it was opened.
    int Descriptor() const { return m_descriptor; }
    std::string Read() const; // From the beginning; raises Failure.

private:
    int m_descriptor;
    std::size_t m_size = 0;
};

} // namespace ruvenmark
