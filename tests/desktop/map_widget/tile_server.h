#pragma once

#include <QByteArray>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <vector>

namespace ruvenmark {

// A web server on this machine's own address that answers as a test tells it.
class TileServer : public QTcpServer {
    Q_OBJECT

public:
    struct Answer {
        int status = 200;
        QByteArray body;
        QByteArray type = "image/png";
        QByteArray headers = {}; // Further lines, each with CR LF.
    };

    TileServer();

    QString Template() const;
    QStringList paths;      // Asked for, in order.
    QByteArray lastRequest; // Head of the last one.
    int mostAtOnce = 0;
    bool bHold = false; // Answers wait for Release.
    std::function<Answer(const QString& path)> answer;

    int Waiting() const { return static_cast<int>(m_waiting.size()); }
    void Release();

private:
    struct Request {
        QPointer<QTcpSocket> socket;
        QString path;
    };

    void Read(QTcpSocket* socket);
    void Reply(const Request& request);

    std::vector<Request> m_waiting;
    int m_running = 0;
};

// A square picture of one colour, as PNG.
QByteArray PngTile(const char* color, int side = 256);

} // namespace ruvenmark
