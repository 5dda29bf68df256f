#include "ports/qt_byte_links.h"

#include "platform/failure.h"
#include "ports/blocking_connect.h"
#include "ports/serial_wire.h"
#include "ports/socket_wire.h"

#include <QSerialPortInfo>

#include <limits>

namespace ruvenmark {

namespace {

// The port as the system takes it. Raises Failure for an address that can name nothing.
std::uint16_t CheckedPort(std::string_view host, std::int32_t port)
{
    if (WithoutBrackets(host).empty() || host.find('\0') != std::string_view::npos)
        throw Failure("no host is given");
    if (port < 1 || port > std::numeric_limits<std::uint16_t>::max())
        throw Failure("there is no port " + std::to_string(port));
    return static_cast<std::uint16_t>(port);
}

} // namespace

std::unique_ptr<IByteLink> QtByteLinks::OpenSerial(std::string_view port, std::int32_t baud, SerialFlow flow,
                                                   IByteSink& sink)
{
    return std::make_unique<WireLink>(MakeWire<SerialWire>(port, baud, flow, sink));
}

std::unique_ptr<IByteLink> QtByteLinks::StartSocket(std::string_view host, std::int32_t port, IByteSink& sink)
{
    return std::make_unique<WireLink>(MakeWire<SocketWire>(WithoutBrackets(host), CheckedPort(host, port), sink));
}

std::unique_ptr<IByteLink> QtByteLinks::ConnectSocket(std::string_view host, std::int32_t port,
                                                      std::chrono::seconds limit, IByteSink& sink)
{
    Descriptor socket = ConnectWithin(std::string(host), CheckedPort(host, port), limit, m_paint);
    return std::make_unique<WireLink>(MakeWire<SocketWire>(std::move(socket), sink));
}

std::vector<std::string> QtByteLinks::SerialPorts()
{
    std::vector<std::string> ports;
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts())
        ports.push_back(port.systemLocation().toStdString());
    return ports;
}

Moment QtByteLinks::Now() const
{
    return WireNow();
}

} // namespace ruvenmark
