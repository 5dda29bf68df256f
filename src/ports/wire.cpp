#include "ports/wire.h"

#include "platform/failure.h"

#include <QDeadlineTimer>
#include <QIODevice>
#include <QThread>

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::chrono::milliseconds kTick{250};
constexpr std::chrono::milliseconds kLateTick{1000};
constexpr qint64 kGathered = 4096;                     // So many never wait for more.
constexpr std::size_t kPiece = std::size_t{64} * 1024; // Told at once; between two of them the window gets its turn.
constexpr qint64 kMostUnsent = 16ll * 1024 * 1024;     // An other end that takes less is as good as gone.

} // namespace

Moment WireNow()
{
    return std::chrono::steady_clock::now();
}

void DeleteWire(Wire* wire)
{
    // Inside its own event one of its timers is still at work; without a loop nobody would come to delete it later.
    if (QThread::currentThread()->loopLevel() > 0)
        wire->deleteLater();
    else
        delete wire;
}

Wire::Wire(IByteSink& sink, std::chrono::milliseconds gather) : m_sink(&sink), m_gather(gather)
{
    m_delivery.setSingleShot(true);
    connect(&m_delivery, &QTimer::timeout, this, &Wire::Deliver);
    connect(&m_ticks, &QTimer::timeout, this, &Wire::Tick);
    m_ticks.start(kTick);
}

void Wire::Write(std::string_view bytes)
{
    CheckOpen();
    QIODevice& device = Device();
    const auto size = static_cast<qint64>(bytes.size());
    if (device.write(bytes.data(), size) == size && device.bytesToWrite() <= kMostUnsent)
        return;
    Lose();
    throw Failure("the other end takes nothing any more");
}

Arrival Wire::Wait(std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    Fetch();
    if (!HasBytes())
        CheckOpen();
    while (!HasBytes() && !m_bLost && !deadline.hasExpired())
        if (!Device().waitForReadyRead(static_cast<int>(std::max<qint64>(1, deadline.remainingTime()))))
            break;
    if (!HasBytes())
        CheckOpen();
    return {Take(), WireNow()};
}

void Wire::Drop()
{
    m_sink = nullptr;
    Fetch(); // A socket that is closed with bytes to read throws away what it has to send.
    Flush();
    Close();
    m_delivery.stop();
    m_ticks.stop();
}

void Wire::Open()
{
    m_bOpen = true;
}

void Wire::OpenAndTell()
{
    Open();
    m_bOpeningUntold = true;
    m_delivery.start(0);
}

// A line a moment would cost two turns of the loop each. The first one after a pause waits for nothing.
void Wire::Arrive()
{
    const bool bAtOnce = m_bLost || !m_sinceDelivery.isValid() || Device().bytesAvailable() >= kGathered;
    if (m_delivery.isActive() && (!bAtOnce || m_delivery.interval() == 0))
        return;
    const qint64 wait = bAtOnce ? 0 : std::max<qint64>(0, m_gather.count() - m_sinceDelivery.elapsed());
    m_delivery.start(static_cast<int>(wait));
    if (wait > 0)
        Hold();
}

void Wire::Lose()
{
    if (m_sink == nullptr)
        return; // It was dropped, and is about to go.
    m_bLost = true;
    Arrive();
}

void Wire::CheckOpen() const
{
    if (m_bLost)
        throw Failure("the link is lost");
    if (!m_bOpen)
        throw Failure("the link is not open");
}

// A serial port whose other end is gone would tell so again and again at the cost of a whole processor.
void Wire::CloseLost()
{
    m_rest = Device().isOpen() ? Device().readAll().toStdString() : std::string();
    Close();
    m_bClosed = true;
}

bool Wire::HasBytes()
{
    return m_bClosed ? !m_rest.empty() : Device().bytesAvailable() > 0;
}

std::string Wire::Take()
{
    if (!m_bClosed)
        return m_bOpen ? Device().read(kPiece).toStdString() : std::string();
    std::string piece = m_rest.substr(0, kPiece);
    m_rest.erase(0, piece.size());
    return piece;
}

void Wire::Deliver()
{
    const auto kept = shared_from_this();
    Fetch();
    m_delivery.stop(); // What was fetched is told now.
    m_sinceDelivery.start();
    if (m_bLost && !m_bClosed)
        CloseLost();
    if (std::exchange(m_bOpeningUntold, false))
        m_sink->OnOpened(WireNow());
    if (m_sink != nullptr && HasBytes())
        m_sink->OnBytes(Take(), WireNow());
    if (m_sink == nullptr)
        return;
    if (HasBytes())
        m_delivery.start(0);
    else if (m_bClosed && !std::exchange(m_bLossTold, true))
        m_sink->OnLost(WireNow());
}

// After what held the loop up, a limit must not pass before what came meanwhile is told: the next tick comes behind it.
void Wire::Tick()
{
    const auto kept = shared_from_this();
    const Moment now = WireNow();
    const bool bLate = now - std::exchange(m_lastTick, now) > kLateTick;
    m_bTickPassed = bLate && !m_bTickPassed; // Never two: on a machine that is always late the clock goes on.
    if (!m_bTickPassed)
        m_sink->OnTick(now);
}

} // namespace ruvenmark
