#include "feed_server.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <netinet/in.h>
#include <sys/socket.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr int kTicksPerSecond = 100;      // Lines of one tick leave together.
constexpr std::size_t kLinesAtOnce = 500; // Where no pace is told.
constexpr std::int16_t kFirstPort = 14580, kLastPort = 14780;

sockaddr_in Loopback(std::int16_t port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

double ThreadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

bool SendAll(int socket, const std::string& bytes)
{
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = send(socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

} // namespace

FeedServer::FeedServer() : m_listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    for (std::int16_t port = kFirstPort; m_port == 0 && port <= kLastPort; ++port) {
        const sockaddr_in address = Loopback(port);
        if (bind(m_listener.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
            m_port = port;
    }
    if (m_port != 0 && listen(m_listener.Number(), 1) == 0)
        return;
    std::fputs("no port is free\n", stderr);
    std::exit(1);
}

FeedServer::~FeedServer()
{
    if (m_peer.Number() >= 0)
        shutdown(m_peer.Number(), SHUT_RDWR);
    if (m_thread.joinable())
        m_thread.join();
}

void FeedServer::Accept()
{
    m_peer = Descriptor(accept(m_listener.Number(), nullptr, nullptr));
}

void FeedServer::Send(std::vector<std::string> lines, int perSecond)
{
    m_thread = std::thread([this, lines = std::move(lines), perSecond] { Run(lines, perSecond); });
}

double FeedServer::Finish()
{
    m_thread.join();
    return m_cpuSeconds;
}

void FeedServer::Run(const std::vector<std::string>& lines, int perSecond)
{
    using Clock = std::chrono::steady_clock;
    const double before = ThreadSeconds();
    const bool bPaced = perSecond > 0;
    const std::size_t atOnce = bPaced ? static_cast<std::size_t>(perSecond / kTicksPerSecond) : kLinesAtOnce;
    auto next = Clock::now();
    bool bTaken = true;
    for (std::size_t first = 0; bTaken && first < lines.size(); first += atOnce) {
        std::string piece;
        for (std::size_t i = first; i < std::min(first + atOnce, lines.size()); ++i)
            piece += lines[i];
        bTaken = SendAll(m_peer.Number(), piece);
        next += std::chrono::milliseconds(1000 / kTicksPerSecond);
        if (bPaced)
            std::this_thread::sleep_until(next);
    }
    m_cpuSeconds = ThreadSeconds() - before;
}

} // namespace ruvenmark
