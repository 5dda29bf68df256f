#pragma once

#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

// What the system calls behind files have in common; for the sources of this folder and the sockets of ports/.
namespace ruvenmark {

// An open file of the system, closed with it. Below 0 there is none.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor()
    {
        if (IsOpen())
            ::close(m_number);
    }
    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }
    int Release() { return std::exchange(m_number, -1); } // Somebody else closes it.

private:
    int m_number;
};

// "cannot open /x/y: No such file or directory", for a number of errno. The C library's own words, never translated.
[[noreturn]] void FailFile(std::string_view verb, std::string_view path, int error);
[[noreturn]] void FailFile(std::string_view verb, std::string_view path, std::string_view reason);

// The path as the system takes it. Raises Failure for one with a NUL, where the system would end it and take another
// file.
std::string SystemPath(std::string_view path, std::string_view verb);

// The file that a symbolic link stands for, there or not. Raises Failure for links in a ring.
std::string FollowLinks(std::string path);

} // namespace ruvenmark
