#pragma once

#include <cstdint>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace ruvenmark {

// A listener on loopback whose queue is full lets connects hang, as an address does that swallows everything.
class BlackHole {
public:
    BlackHole() : m_listener(socket(AF_INET, SOCK_STREAM, 0))
    {
        constexpr std::uint16_t kFirst = 23003, kLast = 32000; // What the form takes; no port that the system chooses.
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* plain = reinterpret_cast<sockaddr*>(&address);
        for (m_port = kFirst; m_port < kLast; m_port = static_cast<std::uint16_t>(m_port + 7)) {
            address.sin_port = htons(m_port);
            if (bind(m_listener, plain, sizeof address) == 0 && listen(m_listener, 0) == 0)
                break;
        }
        for (int i = 0; i < 4; ++i) {
            m_queued.push_back(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0));
            (void)connect(m_queued.back(), plain, sizeof address);
        }
    }
    ~BlackHole()
    {
        for (const int number : m_queued)
            close(number);
        close(m_listener);
    }
    BlackHole(const BlackHole&) = delete;
    BlackHole& operator=(const BlackHole&) = delete;

    std::uint16_t Port() const { return m_port; }

private:
    int m_listener;
    std::uint16_t m_port = 0;
    std::vector<int> m_queued;
};

} // namespace ruvenmark
