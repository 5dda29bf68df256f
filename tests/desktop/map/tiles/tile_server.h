#pragma once

#include <QBuffer>
#include <QHostAddress>
#include <QImage>
#include <QPointer>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace ruvenmark {

// A square picture of one colour, as PNG.
inline QByteArray PngTile(const char* color, int side = 256)
{
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(QColor(color));
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.save(&bytes, "PNG");
    return bytes.data();
}

// A web server on this machine's own address that answers as a test tells it.
class TileServer : public QTcpServer {
public:
    struct Answer {
        int status = 200;
        QByteArray body;
        QByteArray type = "image/png";
        QByteArray headers = {}; // Further lines, each with CR LF.
    };

    TileServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(socket); });
        });
    }

    QString Template() const { return QStringLiteral("http://127.0.0.1:%1/{z}/{x}/{y}.png").arg(serverPort()); }
    QStringList paths;      // Asked for, in order.
    QByteArray lastRequest; // Head of the last one.
    int mostAtOnce = 0;
    bool bHold = false; // Answers wait for Release.
    std::function<Answer(const QString& path)> answer = [](const QString&) { return Answer{200, PngTile("red")}; };

    int Waiting() const { return static_cast<int>(m_waiting.size()); }
    void Release()
    {
        for (const auto& [socket, path] : std::exchange(m_waiting, {})) {
            --m_running;
            if (socket)
                Reply(*socket, answer(path));
        }
    }

private:
    void Read(QTcpSocket* socket)
    {
        if (!socket->peek(8192).contains("\r\n\r\n"))
            return;
        lastRequest = socket->readAll();
        paths.append(QString::fromLatin1(lastRequest.split(' ').value(1)));
        mostAtOnce = std::max(mostAtOnce, ++m_running);
        m_waiting.emplace_back(socket, paths.last());
        if (!bHold)
            Release();
    }
    static void Reply(QTcpSocket& socket, const Answer& reply)
    {
        socket.write("HTTP/1.1 " + QByteArray::number(reply.status) + " Answer\r\nContent-Type: " + reply.type +
                     "\r\nContent-Length: " + QByteArray::number(reply.body.size()) + "\r\n" + reply.headers + "\r\n" +
                     reply.body);
    }

    std::vector<std::pair<QPointer<QTcpSocket>, QString>> m_waiting;
    int m_running = 0;
};

} // namespace ruvenmark
