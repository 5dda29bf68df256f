#include "desktop/map_widget/tile_server.h"

#include <QBuffer>
#include <QHostAddress>
#include <QImage>

#include <algorithm>
#include <utility>

namespace ruvenmark {

TileServer::TileServer()
{
    listen(QHostAddress::LocalHost);
    answer = [](const QString&) { return Answer{200, PngTile("red")}; };
    connect(this, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = nextPendingConnection())
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(socket); });
    });
}

QString TileServer::Template() const
{
    return QStringLiteral("http://127.0.0.1:%1/{z}/{x}/{y}.png").arg(serverPort());
}

void TileServer::Read(QTcpSocket* socket)
{
    if (!socket->peek(8192).contains("\r\n\r\n"))
        return;
    lastRequest = socket->readAll();
    const QString path = QString::fromLatin1(lastRequest.split(' ').value(1));
    paths.append(path);
    mostAtOnce = std::max(mostAtOnce, ++m_running);
    m_waiting.push_back({socket, path});
    if (!bHold)
        Release();
}

void TileServer::Release()
{
    for (const Request& request : std::exchange(m_waiting, {}))
        Reply(request);
}

void TileServer::Reply(const Request& request)
{
    --m_running;
    if (!request.socket)
        return;
    const Answer reply = answer(request.path);
    request.socket->write("HTTP/1.1 " + QByteArray::number(reply.status) + " Answer\r\nContent-Type: " + reply.type +
                          "\r\nContent-Length: " + QByteArray::number(reply.body.size()) + "\r\n" + reply.headers +
                          "\r\n" + reply.body);
}

QByteArray PngTile(const char* color, int side)
{
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(QColor(color));
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.save(&bytes, "PNG");
    return bytes.data();
}

} // namespace ruvenmark
