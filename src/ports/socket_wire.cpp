#include "ports/socket_wire.h"

#include "platform/failure.h"

#include <QNetworkProxy>

#include <utility>

namespace ruvenmark {

namespace {

constexpr std::chrono::seconds kLastSecond{1};

// A server's feed is a line every few milliseconds; nobody reads as fast.
constexpr std::chrono::milliseconds kGather{100};

} // namespace

SocketWire::SocketWire(std::string_view host, std::uint16_t port, IByteSink& sink, std::chrono::milliseconds limit)
    : Wire(sink, kGather)
{
    Prepare();
    connect(&m_socket, &QTcpSocket::connected, this, &SocketWire::OnConnected);
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &SocketWire::OnLimit);
    m_limit.start(limit);
    m_socket.connectToHost(QString::fromUtf8(host.data(), static_cast<qsizetype>(host.size())), port);
}

SocketWire::SocketWire(Descriptor connected, IByteSink& sink) : Wire(sink, kGather)
{
    Prepare();
    if (!m_socket.setSocketDescriptor(connected.Number()))
        throw Failure("the connection cannot be used: " + m_socket.errorString().toStdString());
    connected.Release();
    SetOptions();
    Open();
}

void SocketWire::Prepare()
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.setReadBufferSize(kReadAhead);
    connect(&m_socket, &QTcpSocket::readyRead, this, &SocketWire::Arrive);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &SocketWire::OnError);
    connect(&m_socket, &QTcpSocket::disconnected, this, &SocketWire::Lose);
}

// A socket with a full buffer wakes nobody: a line a moment would cost a turn of the loop each.
void SocketWire::Hold()
{
    m_bHeld = true;
    m_socket.setReadBufferSize(1);
}

void SocketWire::Fetch()
{
    if (!m_bHeld)
        return;
    m_bHeld = false;
    m_socket.setReadBufferSize(kReadAhead);
    if (m_socket.state() == QAbstractSocket::ConnectedState)
        m_socket.waitForReadyRead(0);
}

void SocketWire::SetOptions()
{
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
}

void SocketWire::OnConnected()
{
    m_limit.stop();
    SetOptions();
    OpenAndTell();
}

// A connect that succeeded while something held the loop up is not told yet: the last second runs with the loop.
void SocketWire::OnLimit()
{
    if (std::exchange(m_bLastSecond, true))
        Lose();
    else
        m_limit.start(kLastSecond);
}

void SocketWire::OnError(QAbstractSocket::SocketError error)
{
    if (error != QAbstractSocket::SocketTimeoutError || !IsOpen()) // Of a wait, which tells it itself.
        Lose();
}

} // namespace ruvenmark
