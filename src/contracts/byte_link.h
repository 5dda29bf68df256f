#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A wire without what is said on it: serial ports and sockets as the machines that speak over them see them.
namespace ruvenmark {

using Moment = std::chrono::steady_clock::time_point;

// Told on the logic thread and from the event loop only, never inside a call on the link or on IByteLinks.
class IByteSink {
public:
    virtual ~IByteSink() = default;

    virtual void OnOpened(Moment now) = 0; // Of StartSocket only: the others are open when they return.
    virtual void OnBytes(std::string_view bytes, Moment now) = 0;
    // The other end is gone, or a socket was never opened. Told once, and no bytes after it.
    virtual void OnLost(Moment now) = 0;
    // Four times a second as long as the link is kept: before it is open and after it is lost too, so that whoever
    // holds a loss back has a clock.
    virtual void OnTick(Moment now) = 0;
};

// What came in a wait, and when it was over.
struct Arrival {
    std::string bytes;
    Moment now;
};

// Dropping it closes and silences it, also inside its own event. What was written is still sent as far as the other end
// takes it at once.
class IByteLink {
public:
    virtual ~IByteLink() = default;

    // Returns at once; what the other end does not take yet is kept. Raises Failure when the link is not open or is
    // lost.
    virtual void Write(std::string_view bytes) = 0;
    // Waits for bytes, up to the limit, with no event let in: these are told to no sink. Empty where none came. Raises
    // Failure when the link is lost.
    virtual Arrival Wait(std::chrono::milliseconds limit) = 0;
};

// Whether XON and XOFF hold the other end up, as in talk with a TNC, or are bytes like all others: binary data hold
// both.
enum class SerialFlow : std::uint8_t { None, XonXoff };

// Opens wires. The sink must outlive the link. All but Now and SerialPorts raise Failure.
class IByteLinks {
public:
    virtual ~IByteLinks() = default;

    virtual std::unique_ptr<IByteLink> OpenSerial(std::string_view port, std::int32_t baud, SerialFlow flow,
                                                  IByteSink& sink) = 0;
    // Begins to connect; OnOpened or OnLost tells how it ended.
    virtual std::unique_ptr<IByteLink> StartSocket(std::string_view host, std::int32_t port, IByteSink& sink) = 0;
    // Connects before it returns, with no event let in. The limit reached is a Failure too.
    virtual std::unique_ptr<IByteLink> ConnectSocket(std::string_view host, std::int32_t port,
                                                     std::chrono::seconds limit, IByteSink& sink) = 0;
    virtual std::vector<std::string> SerialPorts() = 0; // Names that OpenSerial takes.
    virtual Moment Now() const = 0;                     // The clock that the sinks' moments come from.
};

} // namespace ruvenmark
