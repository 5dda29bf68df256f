#pragma once

#include "platform/file_descriptor.h"
#include "ports/wire.h"

#include <QTcpSocket>

#include <chrono>
#include <cstdint>
#include <string_view>

namespace ruvenmark {

class SocketWire final : public Wire {
public:
    // Begins to connect. An address that swallows everything would keep the socket waiting for minutes, and without an
    // error: it is given up after the limit and one second more.
    static constexpr std::chrono::milliseconds kConnectLimit{14'000};
    SocketWire(std::string_view host, std::uint16_t port, IByteSink& sink,
               std::chrono::milliseconds limit = kConnectLimit);
    // Takes a socket that is connected. Raises Failure.
    SocketWire(Descriptor connected, IByteSink& sink);

private:
    QIODevice& Device() override { return m_socket; }
    void Hold() override;
    void Fetch() override;
    void Flush() override { m_socket.flush(); }
    void Close() override
    {
        m_limit.stop();
        m_socket.abort();
    }
    void Prepare();
    void SetOptions();
    void OnConnected();
    void OnLimit();
    void OnError(QAbstractSocket::SocketError error);

    QTcpSocket m_socket;
    QTimer m_limit;
    bool m_bLastSecond = false;
    bool m_bHeld = false;
};

} // namespace ruvenmark
