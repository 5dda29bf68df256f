#include "ports/blocking_connect.h"

#include "platform/failure.h"

#include <algorithm>
#include <cerrno>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>
#include <utility>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPaintPause = 20ms;

// What both threads hold. One that the caller gave up goes, with its socket, when the worker is through with it.
struct Attempted {
    std::mutex mutex;
    std::condition_variable ended;
    bool bEnded = false;
    Descriptor socket{-1};
    std::string fault;
};

struct AddressesDeleter {
    void operator()(addrinfo* addresses) const { freeaddrinfo(addresses); }
};
using Addresses = std::unique_ptr<addrinfo, AddressesDeleter>;

Addresses LookUp(const std::string& host, std::uint16_t port)
{
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICSERV;
    addrinfo* found = nullptr;
    const std::string name(WithoutBrackets(host));
    const int error = getaddrinfo(name.c_str(), std::to_string(port).c_str(), &wanted, &found);
    if (error != 0)
        throw Failure("the host is not found: " + std::string(gai_strerror(error)));
    return Addresses(found);
}

// A number of errno, 0 once it is connected.
int WaitConnected(int socket, std::chrono::milliseconds limit)
{
    const auto end = Clock::now() + limit;
    pollfd wanted{socket, POLLOUT, 0};
    int count = -1;
    do {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        count = poll(&wanted, 1, static_cast<int>(std::max(0ms, left).count()));
    } while (count < 0 && errno == EINTR);
    if (count <= 0)
        return count == 0 ? ETIMEDOUT : errno;
    int error = 0;
    socklen_t size = sizeof error;
    return getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

// The socket, or a number of errno in `error`.
Descriptor TryAddress(const addrinfo& address, std::chrono::milliseconds limit, int& error)
{
    Descriptor made(socket(address.ai_family, address.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, address.ai_protocol));
    error = 0;
    if (!made.IsOpen() || connect(made.Number(), address.ai_addr, address.ai_addrlen) != 0)
        error = errno;
    if (error == EINPROGRESS)
        error = WaitConnected(made.Number(), limit);
    return made;
}

// Tries every address of the host; a silent one may only use its share of the time.
Descriptor Connect(const std::string& host, std::uint16_t port, Clock::time_point end)
{
    const Addresses addresses = LookUp(host, port);
    int left = 0;
    for (const addrinfo* address = addresses.get(); address != nullptr; address = address->ai_next)
        ++left;
    int error = ETIMEDOUT;
    for (const addrinfo* address = addresses.get(); address != nullptr; address = address->ai_next) {
        const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        Descriptor made = TryAddress(*address, std::max(0ms, time / left--), error);
        if (error == 0)
            return made;
    }
    throw Failure(error == ETIMEDOUT ? "the connection timed out" : std::generic_category().message(error));
}

void Work(Attempted& attempted, const std::string& host, std::uint16_t port, Clock::time_point end)
{
    Descriptor socket(-1);
    std::string fault;
    try {
        socket = Connect(host, port, end);
    } catch (const std::exception& failure) {
        fault = failure.what();
    }
    const std::lock_guard lock(attempted.mutex);
    attempted.socket = std::move(socket);
    attempted.fault = std::move(fault);
    attempted.bEnded = true;
    attempted.ended.notify_one();
}

void StartWork(const std::shared_ptr<Attempted>& attempted, const std::string& host, std::uint16_t port,
               Clock::time_point end)
{
    try {
        std::thread([=] { Work(*attempted, host, port, end); }).detach();
    } catch (const std::system_error& error) {
        throw Failure(error.what());
    }
}

} // namespace

std::string_view WithoutBrackets(std::string_view host)
{
    return host.starts_with('[') && host.ends_with(']') ? host.substr(1, host.size() - 2) : host;
}

Descriptor ConnectWithin(const std::string& host, std::uint16_t port, std::chrono::milliseconds limit,
                         const std::function<void()>& paint)
{
    const auto end = Clock::now() + limit;
    const auto attempted = std::make_shared<Attempted>();
    StartWork(attempted, host, port, end);
    std::unique_lock lock(attempted->mutex);
    while (!attempted->bEnded && Clock::now() < end) {
        attempted->ended.wait_until(lock, paint ? std::min(end, Clock::now() + kPaintPause) : end,
                                    [&] { return attempted->bEnded; });
        if (paint && !attempted->bEnded) {
            lock.unlock();
            paint();
            lock.lock();
        }
    }
    if (attempted->socket.IsOpen())
        return std::move(attempted->socket);
    const std::string fault = attempted->bEnded ? attempted->fault : "the connection timed out";
    throw Failure("cannot connect to " + host + ':' + std::to_string(port) + ": " + fault);
}

} // namespace ruvenmark
