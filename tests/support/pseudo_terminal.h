#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace ruvenmark {

// The device at the other end of a pseudo terminal.
class PseudoTerminal {
public:
    PseudoTerminal() : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        if (grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            ADD_FAILURE() << "no pseudo terminal";
    }
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;
    ~PseudoTerminal() { HangUp(); }

    std::string Name() const { return ptsname(m_master); }
    int Number() const { return m_master; }
    void Say(std::string_view bytes) const
    {
        EXPECT_EQ(write(m_master, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    std::string Heard()
    {
        std::array<char, 1024> buffer{};
        const ssize_t count = read(m_master, buffer.data(), buffer.size());
        if (count > 0)
            m_heard.append(buffer.data(), static_cast<std::size_t>(count));
        return m_heard;
    }
    void HangUp()
    {
        if (m_master >= 0)
            close(m_master);
        m_master = -1;
    }

private:
    int m_master;
    std::string m_heard;
};

} // namespace ruvenmark
