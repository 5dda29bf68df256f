#pragma once

#include "contracts/byte_link.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>
#include <string>
#include <string_view>
#include <utility>

class QIODevice;

namespace ruvenmark {

Moment WireNow();

// What serial ports and sockets have in common. The device's signals only mark what happened; the sink is told from
// timers of the event loop, so that no call on the link and no code of the device is under way then, and the device can
// be closed there.
class Wire : public QObject, public std::enable_shared_from_this<Wire> {
public:
    // Raises Failure as IByteLink tells.
    void Write(std::string_view bytes);
    Arrival Wait(std::chrono::milliseconds limit);

    // Silent and closed from here on. What runs at the moment may still hold it.
    void Drop();

protected:
    // What comes bit by bit is told so often at most.
    Wire(IByteSink& sink, std::chrono::milliseconds gather);

    virtual QIODevice& Device() = 0;
    virtual void Hold() {} // What comes may stay in the system until Fetch.
    virtual void Fetch() {}
    virtual void Flush() = 0; // What the other end takes at once.
    virtual void Close() = 0;

    // For the device's signals. The first loss counts.
    void Open();
    void OpenAndTell();
    void Arrive();
    void Lose();
    bool IsOpen() const { return m_bOpen; }

private:
    void CheckOpen() const;
    void CloseLost();
    std::string Take();
    bool HasBytes();
    void Deliver();
    void Tick();

    IByteSink* m_sink; // Null once it is dropped.
    std::chrono::milliseconds m_gather;
    QTimer m_delivery;
    QTimer m_ticks;
    QElapsedTimer m_sinceDelivery;
    std::string m_rest; // What a lost device still held.
    Moment m_lastTick = WireNow();
    bool m_bTickPassed = false; // The last one was late and not told.
    bool m_bOpen = false;
    bool m_bOpeningUntold = false;
    bool m_bLost = false;
    bool m_bClosed = false; // Lost, and the device is closed.
    bool m_bLossTold = false;
};

// How much a device reads ahead of the sink: a flood waits in the system, and slows its sender down.
inline constexpr int kReadAhead = 256 * 1024;

void DeleteWire(Wire* wire);

// The event that drops a wire may be its own: it lives until that is over.
template <class AnyWire, class... Arguments>
std::shared_ptr<AnyWire> MakeWire(Arguments&&... arguments)
{
    return std::shared_ptr<AnyWire>(new AnyWire(std::forward<Arguments>(arguments)...), DeleteWire);
}

// The caller's end.
class WireLink final : public IByteLink {
public:
    explicit WireLink(std::shared_ptr<Wire> wire) : m_wire(std::move(wire)) {}
    ~WireLink() override { m_wire->Drop(); }

    void Write(std::string_view bytes) override { m_wire->Write(bytes); }
    Arrival Wait(std::chrono::milliseconds limit) override { return m_wire->Wait(limit); }

private:
    std::shared_ptr<Wire> m_wire;
};

} // namespace ruvenmark
