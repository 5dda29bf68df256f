#include "desktop/termination.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// A signal's handler is given nothing, so what it writes to has to stand here. -1 while nobody listens.
std::atomic<int> writeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void Tell(int number)
{
    std::signal(number, SIG_DFL); // The second time it needs no event loop.
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(writeEnd.load(), &byte, sizeof byte);
}

} // namespace

Termination::Termination(std::function<void()> end, QObject* parent) : QObject(parent), m_end(std::move(end))
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // The program then ends as any other does.
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = new QSocketNotifier(m_readEnd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &Termination::Read);
    for (const int number : kSignals)
        if (std::signal(number, Tell) == SIG_IGN)
            std::signal(number, SIG_IGN); // Started with nohup, for one.
}

Termination::~Termination()
{
    if (m_readEnd < 0)
        return;
    for (const int number : kSignals)
        std::signal(number, SIG_DFL);
    close(writeEnd.exchange(-1));
    close(m_readEnd);
}

void Termination::Read()
{
    m_notifier->setEnabled(false);
    m_end();
}

} // namespace ruvenmark
